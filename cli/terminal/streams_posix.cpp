#include <unistd.h>

#include "terminal/terminal.hpp"

namespace quor_cli {

bool out_is_terminal() {
	return isatty(STDOUT_FILENO) == 1;
}

bool err_is_terminal() {
	return isatty(STDERR_FILENO) == 1;
}

} // namespace quor_cli
