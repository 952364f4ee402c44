#include <quor/i18n/message.hpp>

namespace QUOR_2_9::i18n {

message_t::message_t() = default;

message_t::message_t(types::nil_t const & /*nil*/) {}

message_t::message_t(std::vector<message_item> const &items) : m_items(items) {}

message_t::message_t(strings::ustring8 const &name, std::vector<message_item> const &items)
    : m_items(items), m_name(name) {}

message_t::message_t(strings::ustring8 const &name, std::vector<message_item> const &items,
                     strings::ustring8 const &meta)
    : m_items(items), m_name(name), m_meta(meta) {}

message_t &message_t::assign(message_t const &other) {
	return *this = other;
}

message_t &message_t::assign(types::nil_t const & /*nil*/) {
	m_items.clear();
	m_name.clear();
	m_meta.clear();
	return *this;
}

message_t &message_t::operator=(types::nil_t const &nil) {
	return assign(nil);
}

bool message_t::equal(types::nil_t const & /*nil*/) const noexcept {
	return m_items.empty() && m_name.empty() && m_meta.empty();
}

bool message_t::operator==(types::nil_t const &nil) const noexcept {
	return equal(nil);
}

bool message_t::operator!=(types::nil_t const &nil) const noexcept {
	return !equal(nil);
}

strings::ustring8 const &message_t::name(strings::ustring8 const &value) {
	return m_name = value;
}

strings::ustring8 const &message_t::meta(strings::ustring8 const &value) {
	return m_meta = value;
}

strings::ustring8 const &message_t::_orginal_locale(strings::ustring8 const &value) {
	return m_orginal_locale = value;
}

types::uint32 message_t::count() const noexcept {
	return static_cast<types::uint32>(m_items.size());
}

types::uint32 message_t::size() const noexcept {
	return count();
}

} // namespace QUOR_2_9::i18n
