#include <quor/debug/assert_callback.hpp>

#include "support/early_init.hpp"

namespace QUOR_2_9::debug::_private {

QUOR_EARLY_INIT constinit functor::delegate_t<void(char const *const, char const *const, unsigned int &)>
    g_assert_callback;

} // namespace QUOR_2_9::debug::_private
