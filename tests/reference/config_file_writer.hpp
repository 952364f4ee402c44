#ifndef QUOR_TESTS_REFERENCE_CONFIG_FILE_WRITER_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_FILE_WRITER_HPP

// The writer of configuration files once more: all sections times all entries, step by
// step. What the library's writer is compared with.

#include <cstddef>
#include <string>
#include <vector>

#include "reference/str_to_number_reference.hpp"

namespace reference {

struct cfg_entry {
	std::string name;
	unsigned int flags = 0;
	std::string value;
};

struct cfg_written {
	std::string text;
	std::size_t stops = 0; // sections whose walk ran beyond the last entry
};

inline std::vector<std::string> cfg_pieces(std::string const &name) {
	std::vector<std::string> pieces;
	std::string piece;
	for (char const c : name) {
		if (c == '.') {
			pieces.push_back(piece);
			piece.clear();
		} else {
			piece += c;
		}
	}
	if (!piece.empty()) {
		pieces.push_back(piece);
	}
	return pieces;
}

inline std::string cfg_leaf(std::string const &name) {
	std::vector<std::string> const pieces = cfg_pieces(name);
	return pieces.empty() ? "" : pieces.back();
}

inline std::string cfg_quoted(std::string const &text) {
	for (char const c : text) {
		if (c == ' ' || c == '\r' || c == '\t' || c == '\n') {
			return std::string("\"").append(text).append("\"");
		}
	}
	return text;
}

inline cfg_written write_cfg(std::vector<cfg_entry> const &entries) {
	cfg_written result;
	std::string &text = result.text;
	auto const number = [](std::string const &leaf) {
		return quor_reference::str_to_number(quor_reference::units_of(leaf), leaf.size(), 0, false, {32, true}).value;
	};
	for (cfg_entry const &section : entries) {
		if (section.flags != 0) {
			continue;
		}
		text.append("[").append(cfg_quoted(section.name)).append("]\r\n");
		for (std::size_t f = 0; f < entries.size(); ++f) {
			cfg_entry const &entry = entries[f];
			if (entry.flags == 0) {
				continue;
			}
			std::string const leaf = cfg_leaf(entry.name);
			if (entry.name.size() <= section.name.size() || entry.name.substr(section.name.size() + 1) != leaf) {
				continue;
			}
			if (entry.flags != 3) {
				text.append(cfg_quoted(leaf)).append("=").append(cfg_quoted(entry.value)).append("\r\n");
				continue;
			}
			text.append(cfg_quoted(leaf)).append("[]=");
			++f;
			if (f < entries.size() && cfg_leaf(entries[f].name) == "0") {
				text += cfg_quoted(entries[f].value);
				++f;
				while (f < entries.size() && number(cfg_leaf(entries[f].name)) != 0) {
					text.append(",").append(cfg_quoted(entries[f].value));
					++f;
				}
			}
			text += "\r\n";
			result.stops += f >= entries.size() ? 1 : 0;
		}
		text += "\r\n";
	}
	return result;
}

} // namespace reference

#endif
