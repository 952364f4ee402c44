#include <quor/exceptions/exception.hpp>

#include <cstddef>

namespace QUOR_2_9::exceptions {
namespace {

/// Copies a text up to its zero byte, or the part of it that the field holds with
/// a zero byte behind it. Null leaves the field alone.
template <std::size_t Size>
void fill_field(char (&field)[Size], char const *text) noexcept {
	if (text == nullptr) {
		return;
	}
	std::size_t i = 0;
	for (; i != Size - 1 && text[i] != '\0'; ++i) {
		field[i] = text[i];
	}
	field[i] = '\0';
}

} // namespace

static_assert(sizeof(exception::state) == 516, "the record has a line and two fields of 256 bytes");

exception::state::state(unsigned int line, char const *file, char const *function) noexcept
    : m_line(line), m_file(), m_function() {
	fill_field(m_file, file);
	fill_field(m_function, function);
}

exception::state::state(state const &other) noexcept = default;
exception::state &exception::state::operator=(state const &other) noexcept = default;
exception::state::~state() = default;

unsigned int exception::state::line() const noexcept {
	return m_line;
}

char const *exception::state::file() const noexcept {
	return m_file;
}

char const *exception::state::function() const noexcept {
	return m_function;
}

exception::exception(unsigned int line, char const *file, char const *function) noexcept
    : m_state(line, file, function) {}

exception::exception(state const &place) noexcept : m_state(place) {}

exception::exception(exception const &other) noexcept = default;
exception &exception::operator=(exception const &other) noexcept = default;
exception::~exception() = default;

char const *exception::message() const {
	return get_message();
}

exception::state const &exception::error_state() const noexcept {
	return m_state;
}

} // namespace QUOR_2_9::exceptions
