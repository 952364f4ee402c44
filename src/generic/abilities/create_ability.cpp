#include <quor/generic/abilities/create_ability.hpp>

namespace QUOR_2_9::generic::abilities {

create_ability::~create_ability() = default;

} // namespace QUOR_2_9::generic::abilities
