#include <quor/debug/output.hpp>

#include <atomic>

#include "platform/debug_line.hpp"

namespace QUOR_2_9::debug {
namespace {

void send_to_platform(char const *text) {
	platform::debug_line(text);
}

std::atomic<output_handler> installed{&send_to_platform};

} // namespace

output_handler set_output_handler(output_handler handler) noexcept {
	return installed.exchange(handler != nullptr ? handler : &send_to_platform);
}

void output(char const *text) {
	installed.load()(text);
}

} // namespace QUOR_2_9::debug
