#include <quor/generic/clone_interface.hpp>

namespace QUOR_2_9::generic {

clone_interface::~clone_interface() = default;

} // namespace QUOR_2_9::generic
