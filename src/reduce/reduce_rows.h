// SPDX-License-Identifier: MIT
// Row drivers of the bit-depth reduction; declared once in the namespace of every tier (simd/each_tier.h), hence no
// include guard and no includes.

// Plain quantisation, on the calling thread.
void ownNo_PX(const Reduction& job);

// Ordered dithering, with noise unless it is null.
void ownReduceBits_bayer(const Reduction& job, const Noise* noise);

// Error diffusion, with noise unless it is null: Floyd-Steinberg; Stucki or Jarvis-Judice-Ninke. `errors` holds
// errorRowsOf(method) rows of `width` zeros for every channel that is converted; `workers` share out the channels.
void ownReduceBits_fs(const Reduction& job, const Noise* noise, float* errors, int workers);
void ownReduceBits_st_jj(const Reduction& job, const Noise* noise, float* errors, int workers, ZorDitherMethod method);
