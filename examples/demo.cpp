// Shows the same messages in several languages side by side, then what the library says
// about a broken catalog.
//
//   demo CATALOGS BROKEN_FILE [--width COLUMNS] [--colour]
//
// Wide terminals get one column a language, narrow ones one line a language.

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::generic::argument;
using quor::generic::varg_list;
using quor::i18n::message_catalogs;
using quor::strings::ustring32;
using quor::strings::ustring8;
using lines_t = std::vector<ustring32>;

struct shown_message {
	char const *catalog;
	char const *key;
	varg_list args;
};

struct language {
	ustring8 id;
	message_catalogs catalogs;
};

std::vector<shown_message> shown_messages() {
	auto const args = [](std::vector<argument> const &list) {
		varg_list result;
		for (argument const &each : list) {
			result.push_back(each);
		}
		return result;
	};
	return {
	    {"app", "language", {}},
	    {"app", "version", args({{"version", "3.2"}, {"build", 48611}})},
	    {"app", "greeting", args({{"user", "Mina"}})},
	    {"app", "first_start", {}},
	    {"app", "storage", args({{"used", 231928233984LL}, {"total", 549755813888LL}})},
	    {"app", "tomorrow", args({{"clock", "6:30"}})},
	    {"app", "archive_year", args({{"count", 1284}})},
	    {"backup", "scanning", args({{"folder", "Documents"}, {"count", 18520}})},
	    {"backup", "files_per_second", args({{"rate", 3460}})},
	    {"backup", "ratio", args({{"percent", 61.25}})},
	    {"backup", "finished", args({{"set", "Photos"}, {"count", 184302}, {"size", 92341796864LL}, {"time", 4523.7}})},
	    {"backup", "verify_failed", args({{"file", "IMG_0042.raw"}, {"stored", 51966}, {"computed", -17730}})},
	    {"backup", "retention", args({{"versions", 12}, {"days", 90}})},
	    {"sync", "latency", args({{"time", 12480}})},
	    {"sync", "bandwidth", args({{"rate", 94200}})},
	    {"sync", "conflict", args({{"file", "budget.ods"}, {"host", "kestrel"}})},
	    {"sync", "mail_sent", args({{"address", "mina@example.org"}})},
	    {"errors", "disk_full", args({{"volume", "Archive"}, {"needed", 6442450944LL}, {"free", 734003200}})},
	    {"errors", "retry", args({{"attempt", 2}, {"attempts", 5}, {"time", 90}})},
	    {"errors", "internal", args({{"code", 3735}})},
	};
}

// --- text on a terminal -----------------------------------------------------------

bool is_wide(char32_t point) {
	return (point >= 0x1100 && point <= 0x115F) || (point >= 0x2E80 && point <= 0xA4CF) ||
	       (point >= 0xAC00 && point <= 0xD7A3) || (point >= 0xF900 && point <= 0xFAFF) ||
	       (point >= 0xFE30 && point <= 0xFE6F) || (point >= 0xFF00 && point <= 0xFF60) ||
	       (point >= 0xFFE0 && point <= 0xFFE6) || (point >= 0x1F300 && point <= 0x1FAFF) || point >= 0x20000;
}

// Terminal cells that the text takes.
std::size_t display_width(ustring32 const &text) {
	std::size_t width = 0;
	for (auto const point : text) {
		width += is_wide(static_cast<char32_t>(point)) ? 2 : 1;
	}
	return width;
}

bool is_digit(char32_t point) {
	return point >= U'0' && point <= U'9';
}

// Whether a line may end in front of a place: behind a blank, unless it stands between a
// number and its next group or unit, and between wide characters, unless the second one
// closes something or the first one opens it.
bool may_break(ustring32 const &text, std::size_t place) {
	static std::u32string const closing = U"、。，．！？：；）」』…ー々ぁぃぅぇぉっゃゅょァィゥェォッャュョ";
	static std::u32string const opening = U"（「『";
	auto const before = static_cast<char32_t>(text[place - 1]);
	auto const behind = static_cast<char32_t>(text[place]);
	if (before == U' ') {
		bool const after_number = place > 1 && is_digit(static_cast<char32_t>(text[place - 2]));
		return !(after_number && (is_digit(behind) || (behind >= U'A' && behind <= U'Z')));
	}
	return (is_wide(before) || is_wide(behind)) && behind != U' ' && closing.find(behind) == closing.npos &&
	       opening.find(before) == opening.npos;
}

ustring32 without_blank_at_end(ustring32 line) {
	while (!line.empty() && static_cast<char32_t>(line.back()) == U' ') {
		line.pop_back();
	}
	return line;
}

// Breaks one line into lines of at most `width` cells; a word that is longer is cut.
void wrap_line(ustring32 const &text, std::size_t width, lines_t &lines) {
	std::size_t start = 0;
	while (start < text.size()) {
		std::size_t end = start;
		std::size_t used = 0;
		std::size_t fitting = start;
		for (; end < text.size(); ++end) {
			auto const point = static_cast<char32_t>(text[end]);
			if (end > start && may_break(text, end)) {
				fitting = end;
			}
			used += is_wide(point) ? 2 : 1;
			if (used > width && point != U' ') {
				break;
			}
		}
		if (end < text.size()) {
			end = fitting > start ? fitting : std::max(end, start + 1);
		}
		lines.push_back(without_blank_at_end(text.substr(start, end - start)));
		start = end;
	}
	if (text.empty()) {
		lines.push_back(text);
	}
}

lines_t wrapped(ustring32 const &text, std::size_t width) {
	lines_t lines;
	std::size_t start = 0;
	for (std::size_t i = 0; i <= text.size(); ++i) {
		if (i == text.size() || static_cast<char32_t>(text[i]) == U'\n') {
			wrap_line(text.substr(start, i - start), width, lines);
			start = i + 1;
		}
	}
	return lines;
}

std::string padded(ustring32 const &text, std::size_t width) {
	std::size_t const used = display_width(text);
	return quor::strings::utf32_to_utf8(text) + std::string(width > used ? width - used : 0, ' ');
}

std::string repeated(char const *text, std::size_t count) {
	std::string result;
	for (; count != 0; --count) {
		result += text;
	}
	return result;
}

// --- the page ---------------------------------------------------------------------

class page {
public:
	page(std::size_t width, bool colour) : m_width(width), m_colour(colour) {}

	void title(std::string const &text) const {
		std::cout << '\n' << styled("1", text) << '\n' << styled("2", repeated("═", m_width)) << '\n';
	}

	void messages(std::vector<language> const &languages) const {
		std::size_t const columns = languages.size();
		std::size_t const gaps = (columns - 1) * gap.size();
		if (m_width >= gaps + columns * narrowest_column) {
			as_columns(languages, (m_width - gaps) / columns);
		} else {
			as_lines(languages);
		}
	}

	void failure(std::string const &text) const {
		std::size_t start = 0;
		for (std::size_t i = 0; i <= text.size(); ++i) {
			if (i == text.size() || text[i] == '\n') {
				std::string const line = text.substr(start, i - start);
				std::cout << "  " << styled(line.rfind(" in ", 0) == 0 ? "36" : "31", line) << '\n';
				start = i + 1;
			}
		}
	}

private:
	static constexpr std::size_t narrowest_column = 22;
	inline static std::string const gap = "  ";

	std::string styled(char const *style, std::string const &text) const {
		return m_colour ? std::string("\x1b[") + style + "m" + text + "\x1b[0m" : text;
	}

	void heading(shown_message const &message) const {
		std::cout << styled("1;36", std::string(message.catalog) + "/" + message.key) << '\n';
	}

	// A text that is the same as that of the language before it steps back.
	std::string cell(std::string const &text, bool same) const { return same ? styled("2", text) : text; }

	void as_columns(std::vector<language> const &languages, std::size_t width) const {
		std::string line;
		for (language const &each : languages) {
			line += (line.empty() ? "" : gap) + padded(quor::strings::utf8_to_utf32(each.id), width);
		}
		std::cout << styled("1", line.substr(0, line.find_last_not_of(' ') + 1)) << '\n';
		for (shown_message const &message : shown_messages()) {
			std::cout << styled("2", repeated("─", m_width)) << '\n';
			heading(message);
			std::vector<lines_t> cells;
			std::size_t height = 0;
			for (language const &each : languages) {
				cells.push_back(
				    wrapped(each.catalogs.message(message.catalog, message.key).as_utf32(message.args), width));
				height = std::max(height, cells.back().size());
			}
			for (std::size_t row = 0; row != height; ++row) {
				print_row(cells, row, width);
			}
		}
	}

	void print_row(std::vector<lines_t> const &cells, std::size_t row, std::size_t width) const {
		std::string line;
		std::size_t blanks = 0;
		for (std::size_t column = 0; column != cells.size(); ++column) {
			if (row < cells[column].size()) {
				bool const same = column != 0 && cells[column] == cells[column - 1];
				ustring32 const &text = cells[column][row];
				line += std::string(blanks, ' ') + cell(quor::strings::utf32_to_utf8(text), same);
				blanks = width - std::min(width, display_width(text)) + gap.size();
			} else {
				blanks += width + gap.size();
			}
		}
		std::cout << line << '\n';
	}

	void as_lines(std::vector<language> const &languages) const {
		std::size_t label = 0;
		for (language const &each : languages) {
			label = std::max(label, each.id.size() + 2);
		}
		bool first = true;
		for (shown_message const &message : shown_messages()) {
			if (!first) {
				std::cout << styled("2", repeated("─", m_width)) << '\n';
			}
			first = false;
			heading(message);
			lines_t before;
			for (language const &each : languages) {
				lines_t const lines =
				    wrapped(each.catalogs.message(message.catalog, message.key).as_utf32(message.args),
				            std::max(m_width, label + narrowest_column) - label);
				for (std::size_t row = 0; row != lines.size(); ++row) {
					std::string const name = row == 0 ? std::string(each.id) : std::string();
					std::cout << styled("1", name) << std::string(label - name.size(), ' ')
					          << cell(quor::strings::utf32_to_utf8(lines[row]), lines == before) << '\n';
				}
				before = lines;
			}
		}
	}

	std::size_t m_width;
	bool m_colour;
};

bool load_languages(std::vector<language> &languages, ustring8 const &directory) {
	for (char const *id : {"en", "de", "de_AT", "fr", "ja"}) {
		language each{ustring8(id), {}};
		message_catalogs::result_type const result = each.catalogs.load(directory, each.id);
		if (result != message_catalogs::no_error) {
			std::cerr << result.message() << '\n';
			return false;
		}
		languages.push_back(each);
	}
	return true;
}

} // namespace

int main(int count, char **words) {
	std::vector<std::string> const arguments(words + (count > 0 ? 1 : 0), words + count);
	if (arguments.size() < 2) {
		std::cerr << "usage: demo CATALOGS BROKEN_FILE [--width COLUMNS] [--colour]\n";
		return 2;
	}
	std::size_t width = 150;
	bool colour = false;
	for (std::size_t i = 2; i < arguments.size(); ++i) {
		if (arguments[i] == "--colour") {
			colour = true;
		} else if (arguments[i] == "--width" && i + 1 < arguments.size()) {
			auto const given = quor::types::variant(arguments[++i]).as_uint32();
			width = std::min<std::size_t>(std::max<std::size_t>(given, 40), 400);
		}
	}

	std::vector<language> languages;
	if (!load_languages(languages, arguments[0])) {
		return 1;
	}
	page const out(width, colour);
	out.title("The same messages in five languages");
	out.messages(languages);

	out.title("A broken catalog, and where the fault is");
	message_catalogs broken;
	out.failure(broken.load(ustring8(arguments[1]), ustring8("en")).message());
	return 0;
}
