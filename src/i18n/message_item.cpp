#include <quor/i18n/message_item.hpp>

#include <algorithm>
#include <limits>
#include <string_view>

#include "i18n/format_attributes.hpp"
#include "i18n/item_text.hpp"

namespace QUOR_2_9::i18n {

namespace {

/// Stands for a name of this size or a larger one.
constexpr types::uint32 large_name = std::numeric_limits<types::uint32>::max();

types::uint32 name_size_of(std::string_view data) noexcept {
	return static_cast<types::uint32>(std::min<std::size_t>({data.find(detail::separator), data.size(), large_name}));
}

} // namespace

message_item::message_item(strings::ustring8 const &data) : m_data(data), m_type(type_value), m_name_size(0) {}

message_item::message_item(strings::ustring8 const &data, type_t type)
    : m_data(data), m_type(type), m_name_size(type == type_value ? 0 : name_size_of(data)) {}

message_item &message_item::assign(message_item const &other) {
	return *this = other;
}

strings::ustring8 message_item::data() const {
	return m_data;
}

strings::ustring8 message_item::as_string(generic::varg_list const &args) const {
	detail::text_writer out;
	detail::append_item(out, m_type, m_data, name_size(), detail::argument_finder(args, 1));
	return out.take();
}

std::size_t message_item::name_size() const noexcept {
	// The data of an item that was moved from is gone.
	std::size_t const known = m_name_size != large_name ? m_name_size : m_data.find(detail::separator);
	return std::min<std::size_t>(known, m_data.size());
}

} // namespace QUOR_2_9::i18n
