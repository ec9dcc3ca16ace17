/* Copying an image into a larger one, with the margin filled. */
#ifndef TPXI_BORDERS_H
#define TPXI_BORDERS_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Borders: tpxiCopyConstBorder, tpxiCopyReplicateBorder, tpxiCopyMirrorBorder, tpxiCopyWrapBorder ----
 * Copies an image into a larger one and fills the margin around it: with a constant, with the nearest edge
 * pixel, with the image mirrored about its edge (the edge is not repeated), or with the image repeated. The
 * right and bottom margins are what the sizes leave; margins may be wider than the source. In place (I),
 * pSrcDst points at the source's first pixel inside the destination. A source and a destination pointer that
 * are equal mean the same, with the destination's step, in all kinds but Const. AC4 keeps the destination's
 * fourth channel everywhere.
 *
 * Statuses, in order: tpxErrNullPointer (an image); tpxErrStep (a step below 1); tpxErrSize (a size below 1, a
 * negative margin, or a source that does not fit into the destination with its margins); tpxErrNullPointer (the
 * constant's array); tpxOk. */
TPX_API TpxStatus tpxiCopyConstBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth, Tpx8u value);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth, const Tpx8u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx16u value);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx16s value);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx32s value);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_AC4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx32f value);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32f value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth, Tpx8u value);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                               const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                               const Tpx8u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_AC4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx16u value);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_AC4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx16s value);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_AC4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx32s value);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C3R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_AC4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx32f value);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32f value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_AC4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C1IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth, Tpx8u value);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C3IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth, const Tpx8u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_AC4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C1IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx16u value);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C3IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_AC4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C1IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx16s value);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C3IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_AC4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx32s value);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C3IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_AC4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx32f value);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C3IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32f value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_AC4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx32f value[3]);

TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                 Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                 int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                 Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                 int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                 Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                 int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                  TpxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                  TpxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                  TpxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                   Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                   TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                   Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                   TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                   Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                   TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                    TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                    TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                    TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                    TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                    TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                    TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);

TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                               TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                               TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                               TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);

TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx32s* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx32f* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                              TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                              TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth);

TPX_EXTERN_C_END

#endif
