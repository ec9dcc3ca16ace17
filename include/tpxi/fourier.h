/* Two-dimensional Fourier transforms: of real images to packed spectra and back, and of complex images. */
#ifndef TPXI_FOURIER_H
#define TPXI_FOURIER_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* The forward transform of an image f of W columns and H rows is
 *
 *   F(k, j) = sum over y and x of f(y, x) exp(-2 pi i (k y / H + j x / W)),
 *
 * k being the vertical and j the horizontal frequency, and the inverse is the same with +2 pi i. tpxiFFT* take
 * sides that are powers of two, given as orders (a side of 2^order), and tpxiDFT* any sides.
 *
 * `flag` says where to divide by the number of pixels: 1 (tpxFftDivForward) in forward transforms, 2
 * (tpxFftDivInverse) in inverse ones, 4 (tpxFftDivBySqrt) by its square root in both, 8 (tpxFftNoDivide)
 * nowhere. `hint` is kept in the plan and changes nothing.
 *
 * The packed spectrum of a real image has the image's shape. F(k, j) for 0 < j < W / 2 and every row k has its
 * real part in column 2 j - 1 and its imaginary part in column 2 j. Column 0, and column W - 1 if W is even,
 * hold F(k, 0) and F(k, W / 2), which are symmetric along k: Re F(0), Re F(1), Im F(1), Re F(2), Im F(2), ...,
 * and Re F(H / 2) last if H is even. The frequencies that are not stored are F(H - k, W - j) = conj F(k, j).
 *
 * The transforms are exact to single precision: beside the exact transform of N pixels of noise, the root
 * mean square of the errors is below 0.45 * 2^-24 * log2(N) times that of the result, measured over all rows of
 * up to 2048 pixels and longer ones up to 2^24. Sides with prime factors above 50 cost two transforms of twice
 * the length or more. Results depend neither on steps or addresses nor on the number of channels.
 *
 * A call sequence is: GetSize, Init with a plan and an initialisation buffer of the sizes told, transforms with
 * a work buffer. All of these are the caller's memory, at any address; the plan has to stay where it was made.
 * A plan serves any number of threads, each with a work buffer of its own. The initialisation buffer may be
 * released after Init. */

typedef struct TpxiFFT2DSpec_R TpxiFFT2DSpec_R;
typedef struct TpxiFFT2DSpec_C TpxiFFT2DSpec_C;
typedef struct TpxiDFT2DSpec_R TpxiDFT2DSpec_R;
typedef struct TpxiDFT2DSpec_C TpxiDFT2DSpec_C;

/* ---- Sizes: tpxiFFTGetSize, tpxiDFTGetSize ----------------------------------------------------------------
 * The bytes of plan, initialisation buffer and work buffer. A size of 0 needs no memory, and a null pointer
 * will do: no initialisation buffer for orders up to 10, no work buffer for one row of up to 16 pixels (DFT).
 *
 * Statuses, in order: tpxErrNullPointer (the results); FFT: tpxErrFftOrder (orderX below 0 or above 30);
 * tpxErrFftFlag; tpxErrFftOrder (orderX above 29 of real plans, 28 of complex ones; orderY negative or above
 * 28); DFT: tpxErrSize (below 1); tpxErrFftFlag; tpxErrSize (a side that is no power of two above 134217727, or
 * an odd one above 67108863 in a real plan that has a prime factor above 50); both: tpxErrSizeTooLarge (a
 * result above 2^31 - 1); tpxOk. */
TPX_API TpxStatus tpxiFFTGetSize_R_32f(int orderX, int orderY, int flag, TpxHintAlgorithm hint, int* pSpecSize,
                                       int* pInitBufSize, int* pWorkSize);
TPX_API TpxStatus tpxiFFTGetSize_C_32fc(int orderX, int orderY, int flag, TpxHintAlgorithm hint, int* pSpecSize,
                                        int* pInitBufSize, int* pWorkSize);
TPX_API TpxStatus tpxiDFTGetSize_R_32f(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, int* pSpecSize,
                                       int* pInitBufSize, int* pWorkSize);
TPX_API TpxStatus tpxiDFTGetSize_C_32fc(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, int* pSpecSize,
                                        int* pInitBufSize, int* pWorkSize);

/* ---- Plans: tpxiFFTInit, tpxiDFTInit ----------------------------------------------------------------------
 * Statuses, in order: FFT: tpxErrFftOrder (an order above 30); both: tpxErrNullPointer (pSpec); DFT:
 * tpxErrSize; then those of GetSize after its first; tpxErrNullPointer (pInitBuf, where its size is not 0);
 * tpxOk. */
TPX_API TpxStatus tpxiFFTInit_R_32f(int orderX, int orderY, int flag, TpxHintAlgorithm hint,
                                    TpxiFFT2DSpec_R* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiFFTInit_C_32fc(int orderX, int orderY, int flag, TpxHintAlgorithm hint,
                                     TpxiFFT2DSpec_C* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiDFTInit_R_32f(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, TpxiDFT2DSpec_R* pSpec,
                                    Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiDFTInit_C_32fc(TpxiSize roiSize, int flag, TpxHintAlgorithm hint, TpxiDFT2DSpec_C* pSpec,
                                     Tpx8u* pInitBuf);

/* ---- Real images: tpxiFFTFwd_RToPack, tpxiFFTInv_PackToR, tpxiDFTFwd_RToPack, tpxiDFTInv_PackToR ----------
 * Channels are transformed one by one; AC4 leaves alpha as it was. Source and destination are the same image (I
 * forms) or do not overlap.
 *
 * Statuses, in order: tpxErrNullPointer (pSpec); tpxErrContext (a plan of another kind, or none);
 * tpxErrNullPointer (source, destination); tpxErrStep (below 1); tpxErrNullPointer (pBuffer, where its size is
 * not 0); tpxOk. */
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_RToPack_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                               Tpx8u* pBuffer);

TPX_API TpxStatus tpxiFFTInv_PackToR_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_PackToR_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_PackToR_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_PackToR_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              const TpxiFFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_PackToR_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_PackToR_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_PackToR_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_PackToR_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_R* pSpec,
                                               Tpx8u* pBuffer);

TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_RToPack_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                               Tpx8u* pBuffer);

TPX_API TpxStatus tpxiDFTInv_PackToR_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_PackToR_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_PackToR_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_PackToR_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              const TpxiDFT2DSpec_R* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_PackToR_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_PackToR_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_PackToR_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                              Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_PackToR_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_R* pSpec,
                                               Tpx8u* pBuffer);

/* ---- Complex images: tpxiFFTFwd_CToC, tpxiFFTInv_CToC, tpxiDFTFwd_CToC, tpxiDFTInv_CToC -------------------
 * F(k, j) lies in row k, column j. Statuses as of real images. */
TPX_API TpxStatus tpxiFFTFwd_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                                           const TpxiFFT2DSpec_C* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTFwd_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_C* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                                           const TpxiFFT2DSpec_C* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFFTInv_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiFFT2DSpec_C* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                                           const TpxiDFT2DSpec_C* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTFwd_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_C* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_CToC_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                                           const TpxiDFT2DSpec_C* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiDFTInv_CToC_32fc_C1IR(Tpx32fc* pSrcDst, int srcDstStep, const TpxiDFT2DSpec_C* pSpec,
                                            Tpx8u* pBuffer);

TPX_EXTERN_C_END

#endif
