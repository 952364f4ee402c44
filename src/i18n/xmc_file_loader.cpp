#include <quor/export.hpp>
#include <quor/i18n/xmc_file_loader.hpp>

#include <algorithm>
#include <utility>

#include <quor/strings/transcode.hpp>
#include <quor/system/file.hpp>
#include <quor/system/io.hpp>

#include "i18n/message_storage.hpp"
#include "i18n/xmc_text_being_read.hpp"
#include "parser/token_reader.hpp"

namespace QUOR_2_9::i18n::_private {

using strings::ustring16;
using strings::ustring32;
using strings::ustring8;
using load_error = xmc_file_loader::load_error;

// One file further down; leaves the loader as it was, whatever ends the reading.
class QUOR_LOCAL xmc_file_loader::include_level {
public:
	explicit include_level(xmc_file_loader &loader) : m_loader(loader), m_base(loader.m_include_base) {
		++m_loader.m_include_depth;
	}
	~include_level() {
		m_loader.m_include_base.swap(m_base);
		--m_loader.m_include_depth;
	}
	include_level(include_level const &) = delete;
	include_level &operator=(include_level const &) = delete;

private:
	xmc_file_loader &m_loader;
	ustring8 m_base;
};

namespace {

char normalised(char c) {
	return c == '.' || c == '-' ? '_' : c;
}

ustring8 normalised(ustring8 id) {
	if (id.size() != 1) {
		for (char &c : id) {
			c = normalised(c);
		}
	}
	return id;
}

bool begins_with_en(ustring8 const &id) {
	return id.compare(0, 2, "en") == 0 && (id.size() == 2 || id[2] == '_');
}

// The number of beginnings that an id has: one for each "_", and the whole id unless it
// ends in one. "en" is on the list already.
types::uint32 count_beginnings(ustring8 const &id) {
	auto const separators = static_cast<types::uint32>(std::count(id.begin(), id.end(), '_'));
	types::uint32 const whole = id.back() == '_' ? 0 : 1;
	types::uint32 const listed = begins_with_en(id) ? 1 : 0;
	return separators + whole - listed;
}

// The place of a language among an id's beginnings, from 0; false if it isn't one.
bool find_beginning(ustring8 const &id, ustring8 const &language, types::uint32 &place) {
	std::size_t const size = language.size();
	if (size > id.size()) {
		return false;
	}
	place = 0;
	for (std::size_t i = 0; i != size; ++i) {
		if (id[i] != (size == 1 ? language[i] : normalised(language[i]))) {
			return false;
		}
		place += id[i] == '_' ? 1 : 0;
	}
	if (begins_with_en(id)) {
		--place;
	}
	return size == id.size() ? id.back() != '_' : id[size] == '_';
}

bool is_whole_path(ustring8 const &path) {
	return path[0] == '/' || path[0] == '\\' || (path.size() > 2 && path[1] == ':');
}

} // namespace

xmc_file_loader::xmc_file_loader() = default;

load_error xmc_file_loader::parse(ustring8 const &file) {
	handle_language(ustring8());
	return parse_file(file);
}

load_error xmc_file_loader::parse(ustring8 const &file, ustring8 const &language) {
	handle_language(language);
	return parse_file(file);
}

load_error xmc_file_loader::parse(ustring8 const &file, ustring8 const &language, ustring8 const &catalog) {
	m_catalog_filter = catalog;
	handle_language(language);
	return parse(file);
}

load_error xmc_file_loader::parse(ustring16 const &file) {
	return parse(strings::utf16_to_utf8(file));
}

load_error xmc_file_loader::parse(ustring16 const &file, ustring16 const &language) {
	return parse(strings::utf16_to_utf8(file), strings::utf16_to_utf8(language));
}

load_error xmc_file_loader::parse(ustring16 const &file, ustring16 const &language, ustring16 const &catalog) {
	return parse(strings::utf16_to_utf8(file), strings::utf16_to_utf8(language), strings::utf16_to_utf8(catalog));
}

load_error xmc_file_loader::parse(ustring32 const &file) {
	return parse(strings::utf32_to_utf8(file));
}

load_error xmc_file_loader::parse(ustring32 const &file, ustring32 const &language) {
	return parse(strings::utf32_to_utf8(file), strings::utf32_to_utf8(language));
}

load_error xmc_file_loader::parse(ustring32 const &file, ustring32 const &language, ustring32 const &catalog) {
	return parse(strings::utf32_to_utf8(file), strings::utf32_to_utf8(language), strings::utf32_to_utf8(catalog));
}

load_error xmc_file_loader::read_text(std::string_view text, ustring8 const &file) {
	parser::token_reader tokens(text);
	text_being_read here(*this, text);
	load_error result(load_none, ustring8());
	try {
		try {
			result = read_document(tokens.begin(), tokens.end(), file);
		} catch (load_error const &error) {
			result = error;
			result.append_error_stack(load_error::append_file, file);
		}
		tokens.finish();
	} catch (parser::xml_parser::parse_error const &error) {
		result = load_error(load_xml_error, error);
		result.append_error_stack(load_error::append_file, file);
		return result;
	}
	here.settle();
	return result;
}

load_error xmc_file_loader::parse_file(ustring8 const &file) {
	start_reading();
	if (!system::io::exists(file)) {
		return load_error(load_file_not_found, file);
	}
	// What can't be read counts as empty. The string's own zero is the one behind it.
	ustring8 content;
	system::load_file(file, content);
	std::size_t const separator = file.find_last_of("\\/");
	m_include_base = separator == ustring8::npos ? ustring8("./") : ustring8(file, 0, separator + 1);
	return read_text({content.c_str(), content.size() + 1}, file);
}

load_error xmc_file_loader::parse_string(ustring8 const &text, ustring8 const &file) {
	start_reading();
	return read_text(text, file);
}

// Counts the file; the limits are for everything that one call from outside reads.
void xmc_file_loader::start_reading() {
	if (m_include_depth == 0) {
		m_file_count = 0;
	}
	++m_file_count;
}

void xmc_file_loader::include_file(ustring8 const &path) {
	if (m_text_being_read == nullptr) {
		// Somebody who has tokens of their own asks for it.
		m_file_count = 0;
	}
	if (m_include_depth == max_include_depth || m_file_count == max_files) {
		throw load_error(load_unexpected, ustring8());
	}
	if (m_text_being_read != nullptr) {
		m_text_being_read->check();
	}
	include_level const level(*this);
	load_error const result = parse_file(is_whole_path(path) ? path : m_include_base + path);
	if (result.type() != load_none) {
		throw load_error(result);
	}
}

catalog_t &xmc_file_loader::catalog_to_fill(ustring8 const &name) {
	return m_text_being_read != nullptr ? m_text_being_read->catalog(name) : m_catalogs[name];
}

void xmc_file_loader::set_message(message_t const &message, ustring8 const &catalog) {
	types::uint32 const weight = get_locale_weight(message._orginal_locale());
	catalog_t &to = m_catalogs[catalog];
	auto const *const stored = to.m_storage->find(message.name());
	if (stored == nullptr || get_locale_weight(ustring8(stored->locale())) < weight) {
		to.message(message.name(), message);
	}
}

types::uint32 xmc_file_loader::get_locale_weight(ustring8 const &language) const {
	if (m_language_count == 0) {
		return 0;
	}
	if (language == ".") {
		return 1;
	}
	if (language == "en") {
		return 2;
	}
	for (requested_language const &requested : m_languages) {
		types::uint32 place = 0;
		if (find_beginning(requested.id, language, place)) {
			return requested.first + place;
		}
	}
	return 0;
}

bool xmc_file_loader::is_lang_id_good(ustring8 const &language) const {
	return get_locale_weight(language) != 0;
}

bool xmc_file_loader::is_cat_id_set() const noexcept {
	return !m_catalog_filter.empty();
}

bool xmc_file_loader::is_catalog_matched(ustring8 const &name) const noexcept {
	return m_catalog_filter.empty() || m_catalog_filter == name;
}

void xmc_file_loader::handle_language(ustring8 const &language) {
	types::uint32 const first = m_language_count + 3;
	types::uint32 beginnings = 0;
	if (!language.empty()) {
		ustring8 id = normalised(language);
		beginnings = count_beginnings(id);
		bool const known = std::any_of(m_languages.begin(), m_languages.end(),
		                               [&id](requested_language const &requested) { return requested.id == id; });
		if (!known) {
			m_languages.push_back({std::move(id), first});
		}
	}
	m_language_count += 2 + beginnings;
}

void xmc_file_loader::reset() {}

} // namespace QUOR_2_9::i18n::_private
