#include <quor/i18n/catalog.hpp>

#include <utility>

#include <quor/strings/transcode.hpp>

#include "i18n/language_id.hpp"
#include "i18n/message_storage.hpp"
#include "support/early_init.hpp"

namespace QUOR_2_9::i18n {

using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

QUOR_EARLY_INIT message_t const catalog_t::m_nil_message;

catalog_t::catalog_t() : m_storage(std::make_unique<storage>()) {}

catalog_t::catalog_t(ustring8 const &name, std::vector<ustring8> const & /*languages*/,
                     std::map<ustring8, message_t> const &messages)
    : m_name(name), m_storage(std::make_unique<storage>(messages)) {}

catalog_t::catalog_t(catalog_t const &other)
    : reference_count_pointer_ability(), m_name(other.m_name), m_languages(other.m_languages),
      m_storage(std::make_unique<storage>(*other.m_storage)) {}

catalog_t::~catalog_t() = default;

catalog_t &catalog_t::assign(catalog_t const &other) {
	if (this != &other) {
		catalog_t copy(other);
		m_name.swap(copy.m_name);
		m_languages.swap(copy.m_languages);
		m_storage.swap(copy.m_storage);
	}
	return *this;
}

catalog_t &catalog_t::operator=(catalog_t const &other) {
	return assign(other);
}

catalog_t &catalog_t::assign(types::nil_t const & /*nil*/) {
	auto empty = std::make_unique<storage>();
	m_storage.swap(empty);
	m_name.clear();
	m_languages.clear();
	return *this;
}

catalog_t &catalog_t::operator=(types::nil_t const &nil) {
	return assign(nil);
}

bool catalog_t::equal(types::nil_t const & /*nil*/) const {
	return m_name.empty() && size() == 0 && m_languages.empty();
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
	return m_storage->find(key) != nullptr;
}

bool catalog_t::has_message(ustring16 const &key) const {
	return has_message(strings::utf16_to_utf8(key));
}

bool catalog_t::has_message(ustring32 const &key) const {
	return has_message(strings::utf32_to_utf8(key));
}

message_t const &catalog_t::message(ustring8 const &key) const {
	message_t const *const found = find(key);
	return found != nullptr ? *found : m_nil_message;
}

message_t const &catalog_t::message(ustring16 const &key) const {
	return message(strings::utf16_to_utf8(key));
}

message_t const &catalog_t::message(ustring32 const &key) const {
	return message(strings::utf32_to_utf8(key));
}

message_t const &catalog_t::message(ustring8 const &key, message_t const &value) {
	message_t const &stored = m_storage->store(key, value);
	// Last, as the key may be one of these.
	m_languages.clear();
	return stored;
}

message_t const *catalog_t::find(std::string_view key) const {
	auto const *const found = m_storage->find(key);
	return found != nullptr ? &m_storage->message(*found) : nullptr;
}

std::size_t catalog_t::size() const noexcept {
	return m_storage->size();
}

catalog_t::const_iterator catalog_t::begin() const {
	return m_storage->messages().begin();
}

catalog_t::const_iterator catalog_t::end() const {
	return m_storage->messages().end();
}

void catalog_t::gen_lang_set() const {
	// All of them or none, as a set that isn't empty counts as whole.
	std::set<ustring8> all(m_languages);
	m_storage->visit([&all](storage::record const &one) { all.emplace(one.locale()); });
	m_languages.swap(all);
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
