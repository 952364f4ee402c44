#include <quor/i18n/message_catalogs.hpp>

#include <algorithm>
#include <string_view>
#include <utility>

#include <quor/i18n/xmc_file_loader.hpp>
#include <quor/system/directory.hpp>
#include <quor/system/io.hpp>

#include "i18n/utf8_text.hpp"
#include "i18n/xmc_merging.hpp"
#include "support/ascii.hpp"
#include "system/examine.hpp"

namespace QUOR_2_9::i18n {

using detail::as_utf8;
using strings::ustring16;
using strings::ustring32;
using strings::ustring8;
using types::wide_string;

/// What a load asks for; an empty catalog name asks for all. Owns its texts, as those that
/// the caller gives may be part of what the load replaces.
struct message_catalogs::request {
	ustring8 language;
	ustring8 catalog;
};

namespace {

/// Whether a path ends in ".xmc" or ".xml", in any case of ASCII letters.
bool has_catalog_suffix(std::string_view path) {
	auto const ends_in = [path](std::string_view suffix) {
		return path.size() >= suffix.size() &&
		       std::equal(suffix.rbegin(), suffix.rend(), path.rbegin(),
		                  [](char lower, char unit) { return support::to_lower(unit) == lower; });
	};
	return ends_in(".xmc") || ends_in(".xml");
}

/// A directory that the walk is inside of.
struct load_level {
	system::detail::file_identity identity;
	std::vector<ustring8> entries;
	std::size_t next = 0;
};

bool is_inside(std::vector<load_level> const &chain, system::detail::file_identity const &identity) {
	return std::any_of(chain.begin(), chain.end(),
	                   [&](load_level const &level) { return level.identity.is_same_as(identity); });
}

} // namespace

message_catalogs::result_type message_catalogs::load_one_file(ustring8 const &file, request const &wanted) {
	_private::xmc_file_loader loader;
	auto const error = loader.parse(file, wanted.language, wanted.catalog);
	if (error.type() == _private::xmc_file_loader::load_none) {
		_private::xmc_file_loader::merging::move(loader, m_catalogs);
	}
	return error;
}

message_catalogs::result_type message_catalogs::load_below(ustring8 const &directory, request const &wanted) {
	auto const start = system::detail::examine(directory);
	if (!start) {
		return {directory_not_found, directory};
	}
	result_type const nothing_loaded(no_error, ustring8());
	std::vector<load_level> chain;
	chain.push_back({start->identity, system::list_directory(directory)});
	result_type current = nothing_loaded;
	while (!chain.empty()) {
		auto &level = chain.back();
		if (level.next == level.entries.size()) {
			chain.pop_back();
			continue;
		}
		ustring8 const entry = std::move(level.entries[level.next++]);
		auto const found = system::detail::examine(entry);
		if (found && found->is_file) {
			if (has_catalog_suffix(entry)) {
				current = load_one_file(entry, wanted);
				if (current != no_error) {
					return current;
				}
			}
		} else if (found && found->is_directory && !is_inside(chain, found->identity)) {
			// What a directory gives starts anew, so that an empty one takes the place of
			// the result before it.
			current = nothing_loaded;
			chain.push_back({found->identity, system::list_directory(entry)});
		}
	}
	return current;
}

message_catalogs::result_type message_catalogs::load_one(ustring8 const &path, request const &wanted) {
	if (system::io::is_file(path)) {
		return load_one_file(path, wanted);
	}
	if (system::io::is_directory(path)) {
		return load_below(path, wanted);
	}
	return {entity_not_found, path};
}

template <class Path>
message_catalogs::result_type message_catalogs::load_all(std::vector<Path> const &paths, request const &wanted) {
	result_type current(no_error, ustring8());
	for (auto const &path : paths) {
		current = load_one(as_utf8(path), wanted);
		if (current != no_error) {
			break;
		}
	}
	return current;
}

message_catalogs::result_type message_catalogs::load(ustring8 const &path, ustring8 const &language) {
	return load_one(as_utf8(path), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(ustring16 const &path, ustring16 const &language) {
	return load_one(as_utf8(path), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(ustring32 const &path, ustring32 const &language) {
	return load_one(as_utf8(path), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(ustring8 const &path, ustring8 const &language,
                                                     ustring8 const &catalog_name) {
	return load_one(as_utf8(path), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(ustring16 const &path, ustring16 const &language,
                                                     ustring16 const &catalog_name) {
	return load_one(as_utf8(path), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(ustring32 const &path, ustring32 const &language,
                                                     ustring32 const &catalog_name) {
	return load_one(as_utf8(path), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<ustring8> const &paths, ustring8 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<ustring16> const &paths, ustring16 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<ustring32> const &paths, ustring32 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<std::string> const &paths, ustring8 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<std::string> const &paths, ustring16 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<std::string> const &paths, ustring32 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<wide_string> const &paths, ustring8 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<wide_string> const &paths, ustring16 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<wide_string> const &paths, ustring32 const &language) {
	return load_all(paths, {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load(std::vector<ustring8> const &paths, ustring8 const &language,
                                                     ustring8 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<ustring16> const &paths, ustring16 const &language,
                                                     ustring16 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<ustring32> const &paths, ustring32 const &language,
                                                     ustring32 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<std::string> const &paths, ustring8 const &language,
                                                     ustring8 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<std::string> const &paths, ustring16 const &language,
                                                     ustring16 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<std::string> const &paths, ustring32 const &language,
                                                     ustring32 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<wide_string> const &paths, ustring8 const &language,
                                                     ustring8 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<wide_string> const &paths, ustring16 const &language,
                                                     ustring16 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load(std::vector<wide_string> const &paths, ustring32 const &language,
                                                     ustring32 const &catalog_name) {
	return load_all(paths, {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load_file(ustring8 const &file, ustring8 const &language) {
	return load_one_file(as_utf8(file), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load_file(ustring16 const &file, ustring16 const &language) {
	return load_one_file(as_utf8(file), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load_file(ustring32 const &file, ustring32 const &language) {
	return load_one_file(as_utf8(file), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load_file(ustring8 const &file, ustring8 const &language,
                                                          ustring8 const &catalog_name) {
	return load_one_file(as_utf8(file), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load_file(ustring16 const &file, ustring16 const &language,
                                                          ustring16 const &catalog_name) {
	return load_one_file(as_utf8(file), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load_file(ustring32 const &file, ustring32 const &language,
                                                          ustring32 const &catalog_name) {
	return load_one_file(as_utf8(file), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load_directory(ustring8 const &directory, ustring8 const &language) {
	return load_below(as_utf8(directory), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load_directory(ustring16 const &directory, ustring16 const &language) {
	return load_below(as_utf8(directory), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load_directory(ustring32 const &directory, ustring32 const &language) {
	return load_below(as_utf8(directory), {as_utf8(language), {}});
}

message_catalogs::result_type message_catalogs::load_directory(ustring8 const &directory, ustring8 const &language,
                                                               ustring8 const &catalog_name) {
	return load_below(as_utf8(directory), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load_directory(ustring16 const &directory, ustring16 const &language,
                                                               ustring16 const &catalog_name) {
	return load_below(as_utf8(directory), {as_utf8(language), as_utf8(catalog_name)});
}

message_catalogs::result_type message_catalogs::load_directory(ustring32 const &directory, ustring32 const &language,
                                                               ustring32 const &catalog_name) {
	return load_below(as_utf8(directory), {as_utf8(language), as_utf8(catalog_name)});
}

} // namespace QUOR_2_9::i18n
