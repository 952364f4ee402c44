#include "i18n/compiled_message.hpp"

#include <utility>

namespace QUOR_2_9::i18n::detail {

namespace {

/// The items of a compiled message, one after the other.
class item_walk {
public:
	explicit item_walk(std::string_view items) noexcept : m_left(items) {}

	bool next() noexcept {
		if (m_left.empty()) {
			return false;
		}
		std::uint64_t head = 0;
		std::memcpy(&head, m_left.data(), sizeof head);
		m_type = static_cast<message_item::type_t>(head & 15U);
		m_text = m_left.substr(sizeof head, static_cast<std::size_t>(head >> 4U));
		m_left.remove_prefix(sizeof head + m_text.size());
		return true;
	}

	message_item::type_t type() const noexcept { return m_type; }
	std::string_view text() const noexcept { return m_text; }

private:
	std::string_view m_left;
	std::string_view m_text;
	message_item::type_t m_type = message_item::type_value;
};

} // namespace

message_t message_maker::make(compiled_message const &from) {
	message_t message;
	std::size_t count = 0;
	for (item_walk walk(from.items); walk.next();) {
		++count;
	}
	message.m_items.reserve(count);
	strings::ustring8 text;
	for (item_walk walk(from.items); walk.next();) {
		text.assign(walk.text());
		message.m_items.emplace_back(text, walk.type());
	}
	message.m_name.assign(from.name);
	message.m_meta.assign(from.meta);
	message.m_orginal_locale.assign(from.locale);
	return message;
}

} // namespace QUOR_2_9::i18n::detail
