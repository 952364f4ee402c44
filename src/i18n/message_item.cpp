#include <quor/i18n/message_item.hpp>

namespace QUOR_2_9::i18n {

message_item::message_item(strings::ustring8 const &data) : m_data(data), m_type(type_value) {}

message_item::message_item(strings::ustring8 const &data, type_t type) : m_data(data), m_type(type) {}

message_item &message_item::assign(message_item const &other) {
	return *this = other;
}

strings::ustring8 message_item::data() const {
	return m_data;
}

} // namespace QUOR_2_9::i18n
