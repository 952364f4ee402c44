#include <quor/i18n/catalog.hpp>

#include <quor/strings/transcode.hpp>

#include "i18n/language_id.hpp"
#include "support/early_init.hpp"

namespace QUOR_2_9::i18n {

using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

QUOR_EARLY_INIT message_t const catalog_t::m_nil_message;

catalog_t::catalog_t() = default;

catalog_t::catalog_t(ustring8 const &name, std::vector<ustring8> const & /*languages*/,
                     std::map<ustring8, message_t> const &messages)
    : m_name(name), m_messages(messages) {}

catalog_t::catalog_t(catalog_t const &other)
    : reference_count_pointer_ability(), m_name(other.m_name), m_languages(other.m_languages),
      m_messages(other.m_messages) {}

catalog_t::~catalog_t() = default;

catalog_t &catalog_t::assign(catalog_t const &other) {
	if (this != &other) {
		catalog_t copy(other);
		m_name.swap(copy.m_name);
		m_languages.swap(copy.m_languages);
		m_messages.swap(copy.m_messages);
	}
	return *this;
}

catalog_t &catalog_t::operator=(catalog_t const &other) {
	return assign(other);
}

catalog_t &catalog_t::assign(types::nil_t const & /*nil*/) {
	m_name.clear();
	m_languages.clear();
	m_messages.clear();
	return *this;
}

catalog_t &catalog_t::operator=(types::nil_t const &nil) {
	return assign(nil);
}

bool catalog_t::equal(types::nil_t const & /*nil*/) const {
	return m_name.empty() && m_messages.empty() && m_languages.empty();
}

bool catalog_t::operator==(types::nil_t const &nil) const {
	return equal(nil);
}

bool catalog_t::operator!=(types::nil_t const &nil) const {
	return !equal(nil);
}

void catalog_t::_name(ustring8 const &value) {
	m_name = value;
}

ustring8 catalog_t::name() const {
	return m_name;
}

bool catalog_t::has_message(ustring8 const &key) const {
	return m_messages.find(key) != m_messages.end();
}

bool catalog_t::has_message(ustring16 const &key) const {
	return has_message(strings::utf16_to_utf8(key));
}

bool catalog_t::has_message(ustring32 const &key) const {
	return has_message(strings::utf32_to_utf8(key));
}

message_t const &catalog_t::message(ustring8 const &key) const {
	auto const found = m_messages.find(key);
	return found != m_messages.end() ? found->second : m_nil_message;
}

message_t const &catalog_t::message(ustring16 const &key) const {
	return message(strings::utf16_to_utf8(key));
}

message_t const &catalog_t::message(ustring32 const &key) const {
	return message(strings::utf32_to_utf8(key));
}

message_t const &catalog_t::message(ustring8 const &key, message_t const &value) {
	auto const stored = m_messages.insert_or_assign(key, value).first;
	// Last, as the key may be one of these.
	m_languages.clear();
	return stored->second;
}

void catalog_t::gen_lang_set() const {
	for (auto const &entry : m_messages) {
		m_languages.insert(entry.second._orginal_locale());
	}
}

catalog_t::language_iterator catalog_t::languages_begin() const {
	if (m_languages.empty()) {
		gen_lang_set();
	}
	return m_languages.begin();
}

catalog_t::language_iterator catalog_t::languages_end() const {
	if (m_languages.empty()) {
		gen_lang_set();
	}
	return m_languages.end();
}

bool catalog_t::is_language_loaded(ustring8 const &language) const {
	if (m_languages.empty()) {
		gen_lang_set();
	}
	return m_languages.find(detail::queried_language(language)) != m_languages.end();
}

bool catalog_t::is_language_loaded(ustring16 const &language) const {
	return is_language_loaded(strings::utf16_to_utf8(language));
}

bool catalog_t::is_language_loaded(ustring32 const &language) const {
	return is_language_loaded(strings::utf32_to_utf8(language));
}

} // namespace QUOR_2_9::i18n
