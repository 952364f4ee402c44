// Compiled for every target; x86 alone has what stands here.
#if defined(__x86_64__) || defined(__i386__)

#  define QUOR_VECTORS avx2
#  define QUOR_VECTOR_TARGET "avx2,bmi"

#  include "kernels/avx2_parts.hpp"
#  include "kernels/vector_variant.hpp"

namespace QUOR_2_9::kernels {
namespace {

bool runs_here() noexcept {
	__builtin_cpu_init();
	return __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("bmi") != 0;
}

} // namespace

constinit variant const avx2_variant = avx2::make_variant("AVX2", &runs_here);

} // namespace QUOR_2_9::kernels

#endif
