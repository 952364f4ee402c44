#include <quor/types/variant_type.hpp>

namespace QUOR_2_9::types {

variant_type::variant_type(variant_type const & /*other*/) noexcept
    : clone_ability(), generic::abilities::reference_count_pointer_ability<variant_type>() {}

variant_type::~variant_type() = default;

} // namespace QUOR_2_9::types
