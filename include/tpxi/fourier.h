/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Two-dimensional Fourier transforms: of real images to packed spectra and back, and of complex images. */
#ifndef TPXI_FOURIER_H
#define TPXI_FOURIER_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/**
 * A plan of transforms of real images whose sides are powers of two (tpxiFFT...).
 *
 * The forward transform of an image f of W columns and H rows is
 *
 *     F(k, j) = sum over y and x of f(y, x) exp(-2 pi i (k y / H + j x / W)),
 *
 * k being the vertical and j the horizontal frequency, and the inverse is the same with +2 pi i. The tpxiFFT
 * functions take sides that are powers of two, given as orders (a side of 2^order), the tpxiDFT functions any
 * sides.
 *
 * `flag` says where to divide by the number of pixels: 1 (tpxFftDivForward) in forward transforms, 2
 * (tpxFftDivInverse) in inverse ones, 4 (tpxFftDivBySqrt) by its square root in both, 8 (tpxFftNoDivide)
 * nowhere.
 *
 * The packed spectrum of a real image has the image's shape. F(k, j) for 0 < j < W / 2 and every row k has
 * its real part in column 2 j - 1 and its imaginary part in column 2 j. Column 0, and column W - 1 if W is
 * even, hold F(k, 0) and F(k, W / 2), which are symmetric along k: Re F(0), Re F(1), Im F(1), Re F(2), Im
 * F(2), ..., and Re F(H / 2) last if H is even. The frequencies that are not stored are F(H - k,
 * W - j) = conj F(k, j).
 *
 * Transforms work in single precision: beside the exact transform of N pixels of noise, the root mean square
 * of the errors is below 0.5 * 2^-24 * log2(N) times that of the result, measured over all rows of 2 to
 * 4096 pixels and longer ones up to 2^24. Sides with prime factors above 50 cost two transforms of twice the
 * length or more. Results depend neither on steps or addresses nor on the number of channels.
 *
 * A call sequence is: GetSize, Init with a plan and an initialisation buffer of the sizes told, transforms
 * with a work buffer. All of these are the caller's memory, at any address; the plan has to stay where it was
 * made. A plan serves any number of threads, each with a work buffer of its own. The initialisation buffer
 * may be released after Init.
 *
 * @code
 * int specSize = 0, initSize = 0, workSize = 0, step = 0;
 * TpxiSize size = {256, 128}; // orders 8 and 7
 * TpxStatus status = tpxiFFTGetSize_R_32f(8, 7, tpxFftDivInverse, tpxHintFast, &specSize, &initSize,
 *                                         &workSize);
 * TpxiFFT2DSpec_R* plan = malloc((size_t)specSize);
 * Tpx8u* initBuffer = initSize ? malloc((size_t)initSize) : 0;
 * Tpx8u* workBuffer = workSize ? malloc((size_t)workSize) : 0;
 * Tpx32f* image = tpxiMalloc_32f_C1(size.width, size.height, &step);
 * tpxiSet_32f_C1R(1, image, step, size);
 * if (!status) status = tpxiFFTInit_R_32f(8, 7, tpxFftDivInverse, tpxHintFast, plan, initBuffer);
 * if (!status) status = tpxiFFTFwd_RToPack_32f_C1IR(image, step, plan, workBuffer); // the spectrum
 * if (!status) status = tpxiFFTInv_PackToR_32f_C1IR(image, step, plan, workBuffer); // and the image again
 * tpxiFree(image);
 * free(workBuffer);
 * free(initBuffer);
 * free(plan);
 * @endcode
 */
typedef struct TpxiFFT2DSpec_R TpxiFFT2DSpec_R;

/**
 * A plan of transforms of complex images whose sides are powers of two; TpxiFFT2DSpec_R tells what plans do.
 */
typedef struct TpxiFFT2DSpec_C TpxiFFT2DSpec_C;

/**
 * A plan of transforms of real images of any sides (tpxiDFT...); TpxiFFT2DSpec_R tells what plans do.
 *
 * @code
 * int specSize = 0, initSize = 0, workSize = 0, step = 0;
 * TpxiSize size = {300, 200};
 * TpxStatus status = tpxiDFTGetSize_R_32f(size, tpxFftDivInverse, tpxHintFast, &specSize, &initSize,
 *                                         &workSize);
 * TpxiDFT2DSpec_R* plan = malloc((size_t)specSize);
 * Tpx8u* initBuffer = initSize ? malloc((size_t)initSize) : 0;
 * Tpx8u* workBuffer = workSize ? malloc((size_t)workSize) : 0;
 * Tpx32f* image = tpxiMalloc_32f_C1(size.width, size.height, &step);
 * tpxiSet_32f_C1R(1, image, step, size);
 * if (!status) status = tpxiDFTInit_R_32f(size, tpxFftDivInverse, tpxHintFast, plan, initBuffer);
 * if (!status) status = tpxiDFTFwd_RToPack_32f_C1IR(image, step, plan, workBuffer);
 * if (!status) status = tpxiDFTInv_PackToR_32f_C1IR(image, step, plan, workBuffer);
 * tpxiFree(image);
 * free(workBuffer);
 * free(initBuffer);
 * free(plan);
 * @endcode
 */
typedef struct TpxiDFT2DSpec_R TpxiDFT2DSpec_R;

/**
 * A plan of transforms of complex images of any sides; TpxiFFT2DSpec_R tells what plans do.
 */
typedef struct TpxiDFT2DSpec_C TpxiDFT2DSpec_C;

/** @name Fourier transforms, sizes: tpxiFFTGetSize, tpxiDFTGetSize
 * @{ */

/**
 * Tells the bytes of plan, initialisation buffer and work buffer of Fourier transforms; TpxiFFT2DSpec_R has
 * an example. A size of 0 needs no memory, and a null pointer will do: no initialisation buffer for orders up
 * to 10, no work buffer for one row of up to 16 pixels (DFT).
 *
 * @param orderX       order of the width: images are 2^orderX pixels wide
 * @param orderY       order of the height: images are 2^orderY pixels high
 * @param flag         where to divide by the number of pixels: a TpxFftFlag
 * @param hint         changes nothing
 * @param pSpecSize    takes the bytes of the plan
 * @param pInitBufSize takes the bytes of the initialisation buffer
 * @param pWorkSize    takes the bytes of the work buffer
 * @param roiSize      width and height of the images in pixels
 * @return The first of these that applies: tpxErrNullPointer (the results); FFT: tpxErrFftOrder (orderX below
 *     0 or above 30); tpxErrFftFlag; tpxErrFftOrder (orderX above 29 of real plans, 28 of complex ones;
 *     orderY negative or above 28); DFT: tpxErrSize (below 1); tpxErrFftFlag; tpxErrSize (a side that is no
 *     power of two above 134217727, or an odd one above 67108863 in a real plan that has a prime factor above
 *     50); both: tpxErrSizeTooLarge (a result above 2^31 - 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiFFTGetSize_R_32f(int orderX, int orderY, int flag, TpxHintAlgorithm hint, int* pSpecSize,
                         int* pInitBufSize, int* pWorkSize),
    tpxiFFTGetSize_C_32fc(int orderX, int orderY, int flag, TpxHintAlgorithm hint, int* pSpecSize,
                          int* pInitBufSize, int* pWorkSize),
    tpxiDFTGetSize_R_32f(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, int* pSpecSize, int* pInitBufSize,
                         int* pWorkSize),
    tpxiDFTGetSize_C_32fc(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, int* pSpecSize, int* pInitBufSize,
                          int* pWorkSize);

/** @} */

/** @name Fourier transforms, initialisers: tpxiFFTInit, tpxiDFTInit
 * @{ */

/**
 * Makes a plan of Fourier transforms; TpxiFFT2DSpec_R has an example. A plan whose making failed is refused
 * by the transforms.
 *
 * @param orderX   order of the width: images are 2^orderX pixels wide
 * @param orderY   order of the height: images are 2^orderY pixels high
 * @param flag     where to divide by the number of pixels: a TpxFftFlag
 * @param hint     kept in the plan; it changes nothing
 * @param pSpec    the plan, of the bytes that GetSize tells for the same arguments, at any address
 * @param pInitBuf initialisation buffer of the bytes that GetSize tells, at any address; null where that is 0
 * @param roiSize  width and height of the images in pixels
 * @return The first of these that applies: FFT: tpxErrFftOrder (an order above 30); both: tpxErrNullPointer
 *     (pSpec); FFT: tpxErrFftOrder (orderX below 0); tpxErrFftFlag; tpxErrFftOrder (orderX above 29 of real
 *     plans, 28 of complex ones; orderY negative or above 28); DFT: tpxErrSize (below 1); tpxErrFftFlag;
 *     tpxErrSize (a side that is no power of two above 134217727, or an odd one above 67108863 in a real plan
 *     that has a prime factor above 50); both: tpxErrSizeTooLarge (a size above 2^31 - 1); tpxErrNullPointer
 *     (pInitBuf, where its size is not 0); tpxOk.
 */
TPX_API TpxStatus
    tpxiFFTInit_R_32f(int orderX, int orderY, int flag, TpxHintAlgorithm hint, TpxiFFT2DSpec_R* pSpec,
                      Tpx8u* pInitBuf),
    tpxiFFTInit_C_32fc(int orderX, int orderY, int flag, TpxHintAlgorithm hint, TpxiFFT2DSpec_C* pSpec,
                       Tpx8u* pInitBuf),
    tpxiDFTInit_R_32f(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, TpxiDFT2DSpec_R* pSpec,
                      Tpx8u* pInitBuf),
    tpxiDFTInit_C_32fc(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, TpxiDFT2DSpec_C* pSpec,
                       Tpx8u* pInitBuf);

/** @} */

/** @name Fourier transforms of real images: Fwd_RToPack, Inv_PackToR of tpxiFFT and tpxiDFT
 * @{ */

/**
 * Transforms a real image to its packed spectrum (Fwd), or a packed spectrum to its image (Inv);
 * TpxiFFT2DSpec_R tells the formula and the packing, and has an example. Channels are transformed one by one;
 * AC4 leaves alpha as it was. The image has the plan's size. Source and destination are the same image (I) or
 * do not overlap.
 *
 * @param pSrc       first pixel of the source
 * @param srcStep    bytes from one row of the source to the next
 * @param pDst       first pixel of the destination
 * @param dstStep    bytes from one row of the destination to the next
 * @param pSpec      the plan
 * @param pBuffer    work buffer of the bytes that GetSize told, at any address; null where that is 0
 * @param pSrcDst    first pixel of the image that is read and written
 * @param srcDstStep bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (pSpec); tpxErrContext (a plan of another kind,
 *     or none); tpxErrNullPointer (source, destination); tpxErrStep (below 1); tpxErrNullPointer (pBuffer,
 *     where its size is not 0); tpxOk.
 */
TPX_API TpxStatus
    tpxiFFTFwd_RToPack_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_RToPack_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_RToPack_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_RToPack_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_RToPack_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_RToPack_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_RToPack_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_RToPack_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),

    tpxiFFTInv_PackToR_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_PackToR_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_PackToR_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_PackToR_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_PackToR_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_PackToR_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_PackToR_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_PackToR_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer),

    tpxiDFTFwd_RToPack_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_RToPack_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_RToPack_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_RToPack_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_RToPack_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_RToPack_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_RToPack_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_RToPack_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),

    tpxiDFTInv_PackToR_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_PackToR_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_PackToR_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                               const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_PackToR_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_PackToR_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_PackToR_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_PackToR_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_PackToR_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);

/** @} */

/** @name Fourier transforms of complex images: Fwd_CToC, Inv_CToC of tpxiFFT and tpxiDFT
 * @{ */

/**
 * Transforms a complex image to its spectrum (Fwd) or back (Inv); F(k, j) lies in row k, column j.
 * TpxiFFT2DSpec_R tells the formula, and has an example of the calls. The image has the plan's size. Source
 * and destination are the same image (I) or do not overlap.
 *
 * @param pSrc       first pixel of the source
 * @param srcStep    bytes from one row of the source to the next
 * @param pDst       first pixel of the destination
 * @param dstStep    bytes from one row of the destination to the next
 * @param pSpec      the plan
 * @param pBuffer    work buffer of the bytes that GetSize told, at any address; null where that is 0
 * @param pSrcDst    first pixel of the image that is read and written
 * @param srcDstStep bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (pSpec); tpxErrContext (a plan of another kind,
 *     or none); tpxErrNullPointer (source, destination); tpxErrStep (below 1); tpxErrNullPointer (pBuffer,
 *     where its size is not 0); tpxOk.
 */
TPX_API TpxStatus
    tpxiFFTFwd_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                             const TpxiFFT2DSpec_C* pSpec, Tpx8u* pBuffer),
    tpxiFFTFwd_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_C* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                             const TpxiFFT2DSpec_C* pSpec, Tpx8u* pBuffer),
    tpxiFFTInv_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_C* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                             const TpxiDFT2DSpec_C* pSpec, Tpx8u* pBuffer),
    tpxiDFTFwd_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_C* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                             const TpxiDFT2DSpec_C* pSpec, Tpx8u* pBuffer),
    tpxiDFTInv_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_C* pSpec, Tpx8u* pBuffer);

/** @} */

TPX_EXTERN_C_END

#endif
