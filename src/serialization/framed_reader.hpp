#ifndef QUOR_SRC_SERIALIZATION_FRAMED_READER_HPP
#define QUOR_SRC_SERIALIZATION_FRAMED_READER_HPP

#include <string_view>

#include <quor/types/widths.hpp>

#include "serialization/contents.hpp"
#include "serialization/text_fields.hpp"

namespace QUOR_2_9::serialization::detail {

/// Reads the strings of a text one after the other, as parts of the text, and never goes back.
class framed_reader {
public:
	explicit framed_reader(std::string_view text) noexcept : m_text(text) {}

	/// The next string; empty at the end. One of negative length is all the rest, and the last.
	std::string_view read() noexcept {
		types::int32 const length = take_int32(m_text, m_position);
		std::string_view const result = take_framed(m_text, m_position, length);
		if (length < 0) {
			m_position = no_position;
		}
		return result;
	}

private:
	std::string_view m_text;
	types::uint32 m_position = 0;
};

} // namespace QUOR_2_9::serialization::detail

#endif
