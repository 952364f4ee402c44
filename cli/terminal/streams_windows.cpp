#include "terminal/terminal.hpp"

namespace quor_cli {

// The console shows escape sequences only where a program asks it to; this one doesn't.
bool out_is_terminal() {
	return false;
}

bool err_is_terminal() {
	return false;
}

} // namespace quor_cli
