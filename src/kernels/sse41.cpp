// Compiled for every target; x86 alone has what stands here.
#if defined(__x86_64__) || defined(__i386__)

#  define QUOR_VECTORS sse41
#  define QUOR_VECTOR_TARGET "sse4.1"

#  include "kernels/sse41_parts.hpp"
#  include "kernels/vector_variant.hpp"

namespace QUOR_2_9::kernels {
namespace {

bool runs_here() noexcept {
	__builtin_cpu_init();
	return __builtin_cpu_supports("sse4.1") != 0;
}

} // namespace

constinit variant const sse41_variant = sse41::make_variant("SSE4.1", &runs_here);

} // namespace QUOR_2_9::kernels

#endif
