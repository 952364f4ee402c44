#include <quor/i18n/catalog.hpp>

#include <functional>
#include <utility>

#include <quor/strings/transcode.hpp>

#include "i18n/language_id.hpp"
#include "i18n/message_storage.hpp"
#include "support/early_init.hpp"

namespace QUOR_2_9::i18n {

using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

namespace {

/// How many places are looked at for one name. Names whose hashes collide more than that, which
/// takes somebody who chose them, are left to the map.
constexpr std::size_t most_probes = 32;

constexpr std::size_t smallest_index = 16;

std::size_t hash_of(std::string_view key) noexcept {
	return std::hash<std::string_view>()(key);
}

} // namespace

QUOR_EARLY_INIT message_t const catalog_t::m_nil_message;

catalog_t::catalog_t() : m_storage(std::make_unique<storage>()) {}

catalog_t::catalog_t(ustring8 const &name, std::vector<ustring8> const & /*languages*/,
                     std::map<ustring8, message_t> const &messages)
    : m_name(name), m_storage(std::make_unique<storage>(messages)) {
	reserve_index(size());
}

catalog_t::catalog_t(catalog_t const &other)
    : reference_count_pointer_ability(), m_name(other.m_name), m_languages(other.m_languages),
      m_storage(std::make_unique<storage>(*other.m_storage)) {
	reserve_index(size());
}

catalog_t::~catalog_t() = default;

catalog_t &catalog_t::assign(catalog_t const &other) {
	if (this != &other) {
		catalog_t copy(other);
		m_name.swap(copy.m_name);
		m_languages.swap(copy.m_languages);
		m_storage.swap(copy.m_storage);
		m_index.swap(copy.m_index);
		m_index_is_whole = copy.m_index_is_whole;
	}
	return *this;
}

catalog_t &catalog_t::operator=(catalog_t const &other) {
	return assign(other);
}

catalog_t &catalog_t::assign(types::nil_t const & /*nil*/) {
	auto empty = std::make_unique<storage>();
	m_index.clear();
	m_index_is_whole = true;
	m_storage.swap(empty);
	m_name.clear();
	m_languages.clear();
	return *this;
}

catalog_t &catalog_t::operator=(types::nil_t const &nil) {
	return assign(nil);
}

bool catalog_t::equal(types::nil_t const & /*nil*/) const {
	return m_name.empty() && m_storage->messages.empty() && m_languages.empty();
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
	return find(key) != nullptr;
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
	// First, as it may fail for want of memory.
	reserve_index(size() + 1);
	auto const [stored, is_new] = m_storage->messages.insert_or_assign(key, value);
	if (is_new) {
		add_to_index(*stored);
	}
	// Last, as the key may be one of these.
	m_languages.clear();
	return stored->second;
}

message_t const *catalog_t::find(std::string_view key) const {
	if (m_index.empty()) {
		return nullptr;
	}
	std::size_t const mask = m_index.size() - 1;
	std::size_t const first = hash_of(key);
	for (std::size_t i = 0; i != most_probes; ++i) {
		element const *const entry = m_index[(first + i) & mask];
		if (entry == nullptr) {
			break;
		}
		if (entry->first == key) {
			return &entry->second;
		}
	}
	if (m_index_is_whole) {
		return nullptr;
	}
	auto const found = std::as_const(*m_storage).messages.find(ustring8(key));
	return found != end() ? &found->second : nullptr;
}

/// Makes room for so many messages, with all present ones in their places.
void catalog_t::reserve_index(std::size_t count) {
	if (2 * count <= m_index.size()) {
		return;
	}
	std::size_t size = smallest_index;
	while (size < 2 * count) {
		size *= 2;
	}
	m_index = std::vector<element const *>(size);
	m_index_is_whole = true;
	for (auto const &entry : *this) {
		add_to_index(entry);
	}
}

void catalog_t::add_to_index(element const &entry) noexcept {
	std::size_t const mask = m_index.size() - 1;
	std::size_t const first = hash_of(entry.first);
	for (std::size_t i = 0; i != most_probes; ++i) {
		element const *&place = m_index[(first + i) & mask];
		if (place == nullptr) {
			place = &entry;
			return;
		}
	}
	m_index_is_whole = false;
}

std::size_t catalog_t::size() const noexcept {
	return m_storage->messages.size();
}

catalog_t::const_iterator catalog_t::begin() const noexcept {
	return std::as_const(*m_storage).messages.begin();
}

catalog_t::const_iterator catalog_t::end() const noexcept {
	return std::as_const(*m_storage).messages.end();
}

void catalog_t::gen_lang_set() const {
	for (auto const &entry : *this) {
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
