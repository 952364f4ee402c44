#include "config/config_file_writer.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>

#include <quor/debug/invalid_parameter.hpp>
#include <quor/generic/convert/str_to_x.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::config::detail {
namespace {

using strings::ustring8;

constexpr std::string_view line_end = "\r\n";
constexpr unsigned int passage_node = 0;
constexpr unsigned int array_head = 3;

/// The last component of a dotted name; a dot at the very end separates nothing.
std::string_view leaf_of(std::string_view name) {
	if (!name.empty() && name.back() == '.') {
		name.remove_suffix(1);
	}
	// With no dot, the whole name: the position behind "nowhere" is 0.
	return name.substr(name.rfind('.') + 1);
}

/// The length of the section names under which an entry is written; nothing where it is
/// under none. One byte and the leaf are all that stands behind such a section's name.
std::optional<std::size_t> section_length(std::string_view name) {
	std::string_view const leaf = leaf_of(name);
	if (name.size() <= leaf.size()) {
		return std::nullopt;
	}
	std::size_t const length = name.size() - leaf.size() - 1;
	return name.substr(length + 1) == leaf ? std::optional(length) : std::nullopt;
}

/// Whether an array goes on with an entry of that leaf.
bool continues_array(std::string_view leaf) {
	auto const length = static_cast<types::uint32>(std::min<std::size_t>(leaf.size(), 0xFFFFFFFFU));
	return length != 0 && generic::convert::str_to_int(leaf.data(), length, types::radix_t::detect, false) != 0;
}

/// Appends a text, in quotes where its blanks would be lost otherwise.
void append_quoted(ustring8 &text, std::string_view part) {
	bool const quoted = part.find_first_of(" \r\t\n") != std::string_view::npos;
	text.append(quoted ? "\"" : "").append(part).append(quoted ? "\"" : "");
}

/// What stands below the headers of all sections whose names have one length.
class section_body {
public:
	/// Entries are added in the order of the listing.
	void add(std::size_t entry) { m_entries.push_back(entry); }

	/// Appends the lines, and stops where the last array has no end.
	void append_to(ustring8 &text, std::vector<listed_node> const &listing) {
		if (!m_written) {
			write(listing);
			m_written = true;
		}
		text.append(m_lines);
		if (m_runs_out) {
			debug::invalid_parameter("vector iterator not incrementable", "config\\file_item", __LINE__);
		}
	}

private:
	void write(std::vector<listed_node> const &listing) {
		std::size_t next = 0;
		for (std::size_t const entry : m_entries) {
			if (m_runs_out) {
				break;
			}
			if (entry < next) {
				continue;
			}
			auto const &[name, node] = listing[entry];
			append_quoted(m_lines, leaf_of(name));
			if (node.first == array_head) {
				// The walk of the section goes on behind the entry that ends the array.
				next = write_elements(listing, entry + 1) + 1;
			} else {
				m_lines.append("=");
				append_quoted(m_lines, node.second.as_utf8());
			}
			m_lines.append(line_end);
		}
	}

	/// Writes the elements from `entry` on and returns the entry that ends them.
	std::size_t write_elements(std::vector<listed_node> const &listing, std::size_t entry) {
		m_lines.append("[]=");
		if (entry != listing.size() && leaf_of(listing[entry].first) == "0") {
			append_quoted(m_lines, listing[entry].second.second.as_utf8());
			for (++entry; entry != listing.size() && continues_array(leaf_of(listing[entry].first)); ++entry) {
				m_lines.append(",");
				append_quoted(m_lines, listing[entry].second.second.as_utf8());
			}
		}
		m_runs_out = entry == listing.size();
		return entry;
	}

	std::vector<std::size_t> m_entries;
	ustring8 m_lines;
	bool m_written = false;
	bool m_runs_out = false;
};

} // namespace

ustring8 config_file_text(std::vector<listed_node> const &listing) {
	// Which entries a section has depends on the length of its name alone.
	std::unordered_map<std::size_t, section_body> bodies;
	for (auto const &[name, node] : listing) {
		if (node.first == passage_node) {
			bodies.try_emplace(name.size());
		}
	}
	for (std::size_t entry = 0; entry != listing.size(); ++entry) {
		auto const &[name, node] = listing[entry];
		auto const length = node.first == passage_node ? std::nullopt : section_length(name);
		auto const body = length ? bodies.find(*length) : bodies.end();
		if (body != bodies.end()) {
			body->second.add(entry);
		}
	}
	ustring8 text;
	for (auto const &[name, node] : listing) {
		if (node.first == passage_node) {
			text.append("[");
			append_quoted(text, name);
			text.append("]").append(line_end);
			bodies[name.size()].append_to(text, listing);
			text.append(line_end);
		}
	}
	return text;
}

} // namespace QUOR_2_9::config::detail
