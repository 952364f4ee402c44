#include <quor/i18n/message_catalogs.hpp>

#include "i18n/utf8_text.hpp"
#include "support/early_init.hpp"

namespace QUOR_2_9::i18n {

using detail::as_utf8;
using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

QUOR_EARLY_INIT catalog_t const message_catalogs::s_nil_catalog;
QUOR_EARLY_INIT message_t const message_catalogs::s_nil_message;

message_catalogs::message_catalogs() = default;

message_catalogs::message_catalogs(message_catalogs const &other) = default;

message_catalogs::~message_catalogs() {
	remove();
}

message_catalogs &message_catalogs::assign(message_catalogs const &other) {
	if (this != &other) {
		catalog_map copy(other.m_catalogs);
		m_catalogs.swap(copy);
	}
	return *this;
}

message_catalogs &message_catalogs::operator=(message_catalogs const &other) {
	return assign(other);
}

message_catalogs &message_catalogs::assign(types::nil_t const & /*nil*/) {
	remove();
	return *this;
}

message_catalogs &message_catalogs::operator=(types::nil_t const &nil) {
	return assign(nil);
}

bool message_catalogs::equal(types::nil_t const & /*nil*/) const noexcept {
	return m_catalogs.empty();
}

bool message_catalogs::operator==(types::nil_t const &nil) const noexcept {
	return equal(nil);
}

bool message_catalogs::operator!=(types::nil_t const &nil) const noexcept {
	return !equal(nil);
}

/// The catalog, or null where the name isn't there or leads to nothing.
catalog_t const *message_catalogs::find(ustring8 const &name) const {
	auto const found = m_catalogs.find(name);
	return found != m_catalogs.end() ? found->second.get() : nullptr;
}

/// The same without a string of its own, where that takes a few looks.
catalog_t const *message_catalogs::find_view(std::string_view name) const {
	constexpr std::size_t few = 8;
	if (m_catalogs.size() > few) {
		return find(ustring8(name));
	}
	for (auto const &[key, pointer] : m_catalogs) {
		if (key == name) {
			return pointer.get();
		}
	}
	return nullptr;
}

message_t const &message_catalogs::message_view(std::string_view catalog, std::string_view key) const {
	auto const *found = find_view(catalog);
	message_t const *const message = found != nullptr ? found->find(key) : nullptr;
	return message != nullptr ? *message : found != nullptr ? catalog_t::m_nil_message : s_nil_message;
}

bool message_catalogs::has_catalog(ustring8 const &name) const {
	return find(name) != nullptr;
}

bool message_catalogs::has_catalog(ustring16 const &name) const {
	return has_catalog(as_utf8(name));
}

bool message_catalogs::has_catalog(ustring32 const &name) const {
	return has_catalog(as_utf8(name));
}

bool message_catalogs::has_catalog(ustring8 const &name, ustring8 const &language) const {
	auto const *found = find(name);
	return found != nullptr && found->is_language_loaded(language);
}

bool message_catalogs::has_catalog(ustring16 const &name, ustring16 const &language) const {
	return has_catalog(as_utf8(name), as_utf8(language));
}

bool message_catalogs::has_catalog(ustring32 const &name, ustring32 const &language) const {
	return has_catalog(as_utf8(name), as_utf8(language));
}

catalog_t const &message_catalogs::catalog(ustring8 const &name) const {
	auto const *found = find(name);
	return found != nullptr ? *found : s_nil_catalog;
}

catalog_t const &message_catalogs::catalog(ustring16 const &name) const {
	return catalog(as_utf8(name));
}

catalog_t const &message_catalogs::catalog(ustring32 const &name) const {
	return catalog(as_utf8(name));
}

bool message_catalogs::has_message(ustring8 const &catalog_name, ustring8 const &key) const {
	return message(catalog_name, key) != types::nil;
}

bool message_catalogs::has_message(ustring16 const &catalog_name, ustring16 const &key) const {
	return has_message(as_utf8(catalog_name), as_utf8(key));
}

bool message_catalogs::has_message(ustring32 const &catalog_name, ustring32 const &key) const {
	return has_message(as_utf8(catalog_name), as_utf8(key));
}

message_t const &message_catalogs::message(ustring8 const &catalog_name, ustring8 const &key) const {
	auto const *found = find(catalog_name);
	return found != nullptr ? found->message(key) : s_nil_message;
}

message_t const &message_catalogs::message(ustring16 const &catalog_name, ustring16 const &key) const {
	return message(as_utf8(catalog_name), as_utf8(key));
}

message_t const &message_catalogs::message(ustring32 const &catalog_name, ustring32 const &key) const {
	return message(as_utf8(catalog_name), as_utf8(key));
}

message_t const &message_catalogs::message(std::string const &catalog_name, std::string const &key) const {
	return message_view(catalog_name, key);
}

message_t const &message_catalogs::message(char const *catalog_name, char const *key) const {
	if (catalog_name == nullptr || key == nullptr) {
		return message(ustring8(catalog_name), ustring8(key)); // throws what strings throw
	}
	return message_view(catalog_name, key);
}

std::size_t message_catalogs::size(ustring8 const &name) const {
	return catalog(name).size();
}

std::size_t message_catalogs::size(ustring16 const &name) const {
	return size(as_utf8(name));
}

std::size_t message_catalogs::size(ustring32 const &name) const {
	return size(as_utf8(name));
}

std::size_t message_catalogs::count(ustring8 const &name) const {
	return size(name);
}

std::size_t message_catalogs::count(ustring16 const &name) const {
	return size(name);
}

std::size_t message_catalogs::count(ustring32 const &name) const {
	return size(name);
}

message_catalogs::message_iterator message_catalogs::begin(ustring8 const &name) const {
	return catalog(name).begin();
}

message_catalogs::message_iterator message_catalogs::begin(ustring16 const &name) const {
	return begin(as_utf8(name));
}

message_catalogs::message_iterator message_catalogs::begin(ustring32 const &name) const {
	return begin(as_utf8(name));
}

message_catalogs::message_iterator message_catalogs::end(ustring8 const &name) const {
	return catalog(name).end();
}

message_catalogs::message_iterator message_catalogs::end(ustring16 const &name) const {
	return end(as_utf8(name));
}

message_catalogs::message_iterator message_catalogs::end(ustring32 const &name) const {
	return end(as_utf8(name));
}

void message_catalogs::erase() {
	remove();
}

void message_catalogs::erase(ustring8 const &name) {
	auto const found = m_catalogs.find(name);
	if (found != m_catalogs.end()) {
		m_catalogs.erase(found);
	}
}

void message_catalogs::erase(ustring16 const &name) {
	erase(as_utf8(name));
}

void message_catalogs::erase(ustring32 const &name) {
	erase(as_utf8(name));
}

void message_catalogs::remove() {
	m_catalogs.clear();
}

} // namespace QUOR_2_9::i18n
