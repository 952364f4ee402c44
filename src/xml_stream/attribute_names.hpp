#ifndef QUOR_SRC_XML_STREAM_ATTRIBUTE_NAMES_HPP
#define QUOR_SRC_XML_STREAM_ATTRIBUTE_NAMES_HPP

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace QUOR_2_9::xml_stream::detail {

/// The names of the attributes in one tag: a row as long as they are few, a set beyond.
class attribute_names {
public:
	/// Returns false where the name is there.
	bool insert(std::string_view name) {
		auto const few_end = m_few.begin() + static_cast<std::ptrdiff_t>(m_count);
		if (std::find(m_few.begin(), few_end, name) != few_end) {
			return false;
		}
		if (m_count == m_few.size()) {
			return m_many.emplace(name).second;
		}
		m_few[m_count] = name;
		++m_count;
		return true;
	}

	void clear() noexcept {
		m_count = 0;
		m_many.clear();
	}

private:
	std::array<std::string, 16> m_few; // keep their room
	std::size_t m_count = 0;
	std::set<std::string, std::less<>> m_many;
};

} // namespace QUOR_2_9::xml_stream::detail

#endif
