#ifndef QUOR_CLI_TERMINAL_TERMINAL_HPP
#define QUOR_CLI_TERMINAL_TERMINAL_HPP

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace quor_cli {

// Where the command writes to.
struct terminal {
	std::ostream &out;
	std::ostream &err;
	bool out_has_colours = false;
	bool err_has_colours = false;
	bool shows_progress = false; // whether the error stream is a terminal
};

enum class colour { red, yellow, green, faint, bold };

// The text with what colours it, or as it is.
std::string coloured(std::string_view text, colour which, bool has_colours);

// What may hold anything, made fit for a terminal: control characters, characters that turn
// the direction of writing, and bytes that are no UTF-8 are shown as \x1B or \u{202E}.
// A line feed and a tab stay where keep_lines is set.
std::string printable(std::string_view text, bool keep_lines = false);

// Where the first byte stands that no text holds, npos if there is none: what is no UTF-8, and
// control characters other than tab, line feed and carriage return.
std::size_t find_no_text(std::string_view text);

// The first character of a text, or its first byte where that is no UTF-8.
std::string first_character(std::string_view text);

// How many columns a text takes, about: one for each code point, two for wide ones.
std::size_t columns(std::string_view text);

// The text with blanks behind it, up to a width.
std::string padded(std::string_view text, std::size_t width);

// Shows how far a long work is, on one line of the error stream that it erases at its end.
class progress_bar {
public:
	progress_bar(terminal &to, std::string_view what) : m_to(to), m_what(what) {}
	~progress_bar();
	progress_bar(progress_bar const &) = delete;
	progress_bar &operator=(progress_bar const &) = delete;

	void show(std::size_t done, std::size_t all);

private:
	terminal &m_to;
	std::string m_what;
	std::size_t m_percent = 101;
	bool m_is_shown = false;
};

// Whether the standard output and error streams are terminals.
bool out_is_terminal();
bool err_is_terminal();

} // namespace quor_cli

#endif
