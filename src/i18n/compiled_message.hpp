#ifndef QUOR_SRC_I18N_COMPILED_MESSAGE_HPP
#define QUOR_SRC_I18N_COMPILED_MESSAGE_HPP

// Messages as the loader leaves them: a few bytes each instead of many small strings. Most
// programs ask for few of the messages that they load; those are made when they are asked for.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include <quor/i18n/message.hpp>
#include <quor/i18n/message_item.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::i18n::detail {

/// The texts of a message; they belong to somebody else. The items stand one behind the
/// other, each one's text behind a word that holds its size above four bits of its type.
struct compiled_message {
	std::string_view name;
	std::string_view meta;
	std::string_view locale;
	std::string_view items;

	std::size_t size() const noexcept { return name.size() + meta.size() + items.size(); }
};

/// Makes messages of what is compiled.
class message_maker {
public:
	static message_t make(compiled_message const &from);
};

/// A message that is being compiled, in memory that stays for the next one.
class message_draft {
public:
	strings::ustring8 &name;
	strings::ustring8 &meta;

	explicit message_draft(strings::ustring8 (&memory)[3]) : name(memory[0]), meta(memory[1]), m_items(memory[2]) {}
	message_draft(message_draft const &) = delete;
	message_draft &operator=(message_draft const &) = delete;

	void clear() noexcept {
		name.clear();
		meta.clear();
		m_items.clear();
		m_in_literal = false;
	}

	/// Whether literal text stands behind the last argument.
	bool in_literal() const noexcept { return m_in_literal; }
	char last_of_literal() const noexcept { return m_items.back(); }

	void append_literal(std::string_view text) {
		if (!text.empty()) {
			open_literal();
			m_items.append(text);
		}
	}
	void append_literal(char c) {
		open_literal();
		m_items.push_back(c);
	}
	void close_literal() noexcept {
		if (m_in_literal) {
			close(message_item::type_value);
			m_in_literal = false;
		}
	}

	/// An argument's text is written between these two.
	void open_argument() {
		close_literal();
		open();
	}
	void close_argument(message_item::type_t type) noexcept { close(type); }
	void append(std::string_view text) { m_items.append(text); }
	void append(char c) { m_items.push_back(c); }
	/// Drops what was written of the argument.
	void restart_argument() noexcept { m_items.resize(m_open + sizeof(std::uint64_t)); }

	/// The text of the last item, closed or open.
	std::string_view last_text() const noexcept {
		return std::string_view(m_items).substr(m_open + sizeof(std::uint64_t));
	}

	compiled_message compiled(std::string_view locale) const noexcept { return {name, meta, locale, m_items}; }

private:
	strings::ustring8 &m_items;
	std::size_t m_open = 0; // where the last item begins
	bool m_in_literal = false;

	void open() {
		m_open = m_items.size();
		m_items.append(sizeof(std::uint64_t), '\0');
	}
	void open_literal() {
		if (!m_in_literal) {
			open();
			m_in_literal = true;
		}
	}
	void close(message_item::type_t type) noexcept {
		std::uint64_t const size = m_items.size() - m_open - sizeof(std::uint64_t);
		std::uint64_t const head = size << 4U | static_cast<std::uint64_t>(type);
		std::memcpy(m_items.data() + m_open, &head, sizeof head);
	}
};

} // namespace QUOR_2_9::i18n::detail

#endif
