// SPDX-License-Identifier: Apache-2.0
/* One instruction wider than AVX. */
int main(void) {
    __asm__ volatile("vpaddd %%ymm0, %%ymm0, %%ymm0" ::: "xmm0");
    return 0;
}
