#ifndef QUOR_SRC_I18N_TEXT_WRITER_HPP
#define QUOR_SRC_I18N_TEXT_WRITER_HPP

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace QUOR_2_9::i18n::detail {

/// A text that grows at its end. A short one stands on the stack until it is taken, which is then
/// the one allocation.
class text_writer {
public:
	/// @param expected the size where it is known before; memory for a long text is taken here.
	explicit text_writer(std::size_t expected = 0) {
		if (expected > sizeof m_short) {
			m_limit = m_short;
			m_long.reserve(expected);
		}
	}

	text_writer(text_writer const &) = delete;
	text_writer &operator=(text_writer const &) = delete;

	std::size_t size() const noexcept { return m_limit == m_short ? m_long.size() : short_size(); }

	/// The text from a place on.
	std::string_view view(std::size_t from) const noexcept {
		std::string_view const all =
		    m_limit == m_short ? std::string_view(m_long) : std::string_view(m_short, short_size());
		return all.substr(from);
	}

	void append(std::string_view text) {
		if (text.size() > room()) {
			lengthen(text.size());
			m_long.append(text);
		} else if (!text.empty()) {
			std::memcpy(m_end, text.data(), text.size());
			m_end += text.size();
		}
	}

	void append(std::size_t count, char unit) {
		if (count > room()) {
			lengthen(count);
			m_long.append(count, unit);
		} else {
			std::memset(m_end, unit, count);
			m_end += count;
		}
	}

	/// Appends what `write(buffer)` puts into a buffer of `Most` characters; it returns their count.
	template <std::size_t Most, class Write>
	void append_written(Write write) {
		if (Most <= room()) {
			m_end += write(m_end);
			return;
		}
		char buffer[Most];
		append(std::string_view(buffer, write(buffer)));
	}

	/// Drops what stands behind the first `size` characters.
	void cut(std::size_t size) noexcept {
		if (m_limit == m_short) {
			m_long.erase(size);
		} else {
			m_end = m_short + size;
		}
	}

	/// The whole text; nothing may be asked of the writer afterwards.
	std::string take() { return m_limit == m_short ? std::move(m_long) : std::string(m_short, short_size()); }

private:
	std::size_t short_size() const noexcept { return static_cast<std::size_t>(m_end - m_short); }
	std::size_t room() const noexcept { return static_cast<std::size_t>(m_limit - m_end); }

	/// From here on the text stands in `m_long`, with memory for `more` and some, and the short one
	/// has no room.
	void lengthen(std::size_t more) {
		if (m_limit != m_short) {
			m_long.reserve(short_size() + more + sizeof m_short);
			m_long.assign(m_short, short_size());
			m_end = m_short;
			m_limit = m_short;
		}
	}

	char m_short[512];
	char *m_end = m_short;
	char *m_limit = m_short + sizeof m_short;
	std::string m_long;
};

} // namespace QUOR_2_9::i18n::detail

#endif
