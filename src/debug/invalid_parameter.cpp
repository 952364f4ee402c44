#include <quor/debug/invalid_parameter.hpp>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace QUOR_2_9::debug {
namespace {

[[noreturn]] void report_and_abort(char const *what, char const *file, unsigned int line) {
	std::string text("quor: invalid parameter: ");
	text.append(what).append(" (").append(file).append(", line ").append(std::to_string(line)).append(")\n");
	std::fputs(text.c_str(), stderr);
	std::abort();
}

std::atomic<invalid_parameter_handler> installed{&report_and_abort};

} // namespace

invalid_parameter_handler set_invalid_parameter_handler(invalid_parameter_handler handler) noexcept {
	return installed.exchange(handler != nullptr ? handler : &report_and_abort);
}

void ignore_invalid_parameter(char const * /*what*/, char const * /*file*/, unsigned int /*line*/) {}

void invalid_parameter(char const *what, char const *file, unsigned int line) {
	installed.load()(what, file, line);
}

} // namespace QUOR_2_9::debug
