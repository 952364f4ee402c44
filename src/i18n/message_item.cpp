#include <quor/i18n/message_item.hpp>

#include "i18n/item_text.hpp"

namespace QUOR_2_9::i18n {

message_item::message_item(strings::ustring8 const &data) : m_data(data), m_type(type_value) {}

message_item::message_item(strings::ustring8 const &data, type_t type) : m_data(data), m_type(type) {}

message_item &message_item::assign(message_item const &other) {
	return *this = other;
}

strings::ustring8 message_item::data() const {
	return m_data;
}

strings::ustring8 message_item::as_string(generic::varg_list const &args) const {
	strings::ustring8 result;
	detail::append_item(result, m_type, m_data, detail::argument_finder(args, 1));
	return result;
}

} // namespace QUOR_2_9::i18n
