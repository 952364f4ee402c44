#ifndef QUOR_SRC_PARSER_XML_READER_STATE_HPP
#define QUOR_SRC_PARSER_XML_READER_STATE_HPP

#include <cstddef>
#include <deque>
#include <set>
#include <string>
#include <string_view>

#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::parser::detail {

// The names of the attributes in one tag. A few short ones stand in a row, each behind a byte
// that holds its size; all of them are in the set as soon as one goes beyond that.
class attribute_names {
public:
	attribute_names(std::string &row, std::set<strings::ustring8> &set) : m_row(row), m_set(set) {}

	void clear() noexcept {
		m_row.clear();
		if (!m_set.empty()) {
			m_set.clear();
		}
	}

	// False where the name is there.
	bool add(std::string_view name) {
		if (m_set.empty()) {
			if (is_in_row(name)) {
				return false;
			}
			if (m_row.size() + 1 + name.size() <= longest_row) {
				// Both or none of them, whatever fails.
				m_row.reserve(m_row.size() + 1 + name.size());
				m_row.push_back(static_cast<char>(static_cast<unsigned char>(name.size())));
				m_row.append(name);
				return true;
			}
			move_to_set();
		}
		return m_set.emplace(name).second;
	}

private:
	static constexpr std::size_t longest_row = 200;

	std::string &m_row;
	std::set<strings::ustring8> &m_set;

	static std::size_t size_at(char const *entry) noexcept { return static_cast<unsigned char>(*entry); }

	bool is_in_row(std::string_view name) const noexcept {
		char const *const end = m_row.data() + m_row.size();
		for (char const *entry = m_row.data(); entry != end; entry += 1 + size_at(entry)) {
			if (std::string_view(entry + 1, size_at(entry)) == name) {
				return true;
			}
		}
		return false;
	}

	void move_to_set() {
		std::set<strings::ustring8> all;
		char const *const end = m_row.data() + m_row.size();
		for (char const *entry = m_row.data(); entry != end; entry += 1 + size_at(entry)) {
			all.emplace(std::string_view(entry + 1, size_at(entry)));
		}
		m_set.swap(all);
		m_row.clear();
	}
};

// What one reading leaves to the next one; it belongs to somebody else. The names of the open
// elements are strings, or views where the text outlives the reading.
template <class Elements>
struct xml_reader_state {
	Elements &elements;
	attribute_names attributes;
	bool &in_tag;
	types::uint32 &line;
};

} // namespace QUOR_2_9::parser::detail

#endif
