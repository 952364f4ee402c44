#include "platform/program_path.hpp"

namespace QUOR_2_9::platform {

bool slash_separates_program_path() noexcept {
	return true;
}

} // namespace QUOR_2_9::platform
