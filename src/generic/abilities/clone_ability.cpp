#include <quor/generic/abilities/clone_ability.hpp>

namespace QUOR_2_9::generic::abilities {

clone_ability::~clone_ability() = default;

} // namespace QUOR_2_9::generic::abilities
