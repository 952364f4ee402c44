#ifndef QUOR_TESTS_SUPPORT_COUT_CAPTURE_HPP
#define QUOR_TESTS_SUPPORT_COUT_CAPTURE_HPP

// While it lives, what is written to std::cout is kept. One at a time.

#include <iostream>
#include <sstream>
#include <string>

namespace quor_test {

class cout_capture {
public:
	cout_capture() : m_before(std::cout.rdbuf(m_text.rdbuf())) {}
	~cout_capture() { std::cout.rdbuf(m_before); }
	cout_capture(cout_capture const &) = delete;
	cout_capture &operator=(cout_capture const &) = delete;

	std::string text() const { return m_text.str(); }

private:
	std::ostringstream m_text;
	std::streambuf *m_before;
};

} // namespace quor_test

#endif
