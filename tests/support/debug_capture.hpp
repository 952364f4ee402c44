#ifndef QUOR_TESTS_SUPPORT_DEBUG_CAPTURE_HPP
#define QUOR_TESTS_SUPPORT_DEBUG_CAPTURE_HPP

#include <string>
#include <vector>

#include <quor/debug/output.hpp>

namespace quor_test {

// While it lives, what the library sends to the debug channel is kept, call by call.
// One at a time.
class debug_capture {
public:
	debug_capture() {
		calls().clear();
		m_before = QUOR_2_9::debug::set_output_handler(&take);
	}
	~debug_capture() { QUOR_2_9::debug::set_output_handler(m_before); }
	debug_capture(debug_capture const &) = delete;
	debug_capture &operator=(debug_capture const &) = delete;

	static std::vector<std::string> &calls() {
		static std::vector<std::string> list;
		return list;
	}

private:
	static void take(char const *text) { calls().emplace_back(text); }

	QUOR_2_9::debug::output_handler m_before;
};

} // namespace quor_test

#endif
