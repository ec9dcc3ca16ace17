/* SPDX-License-Identifier: Apache-2.0 */
/** @file
 * What a status is called and what it means: tpxStatusName, tpxStatusText. Inline, in C and in C++. */
#ifndef TPXI_STATUS_TEXT_H
#define TPXI_STATUS_TEXT_H

#include "types.h"

#if defined(__cplusplus)
#define TPX_INLINE inline
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 199901L
#define TPX_INLINE static inline
#else
#define TPX_INLINE static __inline__
#endif

/**
 * Gives the name of a status: "tpxErrSize" for -6.
 *
 * @param status what a call returned
 * @return its enumerator, or "unknown" for what is no status
 */
TPX_INLINE const char* tpxStatusName(TpxStatus status) {
    switch (status) {
#define TPX_STATUS(name, value, text) \
    case name:                        \
        return #name;
        TPX_STATUSES(TPX_STATUS, TPX_STATUS)
#undef TPX_STATUS
        default:
            return "unknown";
    }
}

/**
 * Gives the text of a status, as in the list of types.h: "width or height below 1, or sizes that do not fit
 * together" for -6.
 *
 * @param status what a call returned
 * @return its text, or "no status of this library" for what is none
 */
TPX_INLINE const char* tpxStatusText(TpxStatus status) {
    switch (status) {
#define TPX_STATUS(name, value, text) \
    case name:                        \
        return text;
        TPX_STATUSES(TPX_STATUS, TPX_STATUS)
#undef TPX_STATUS
        default:
            return "no status of this library";
    }
}

#endif
