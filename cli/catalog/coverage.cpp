#include "catalog/coverage.hpp"

#include <algorithm>
#include <utility>

#include "catalog/language_id.hpp"
#include "catalog/samples.hpp"

namespace quor_cli {

namespace {

using quor::i18n::message_catalogs;
using quor::i18n::message_t;
using quor::strings::ustring8;
using message_key = std::pair<std::string, std::string>;

covered_text text_of(message_t const &message) {
	quor::generic::varg_list arguments;
	add_samples(message, arguments);
	return {normalised_language(message._orginal_locale()), message.as_string(arguments), true};
}

// Loads one language and enters its texts at its column.
std::string add_language(std::vector<std::string> const &files, std::string const &language, std::size_t column,
                         std::size_t count, std::map<message_key, covered_message> &messages) {
	message_catalogs catalogs;
	if (std::string fault = load_catalogs(catalogs, files, language); !fault.empty()) {
		return fault;
	}
	for (auto const &[name, catalog] : catalogs) {
		for (auto const &[key, message] : *catalog) {
			covered_message &covered = messages[{name, key}];
			covered.texts.resize(count);
			covered.texts[column] = text_of(message);
			if (covered.meta.empty()) {
				covered.meta = message.meta();
			}
		}
	}
	return {};
}

void add_total(coverage &result, covered_message const &message) {
	for (std::size_t i = 0; i != result.languages.size(); ++i) {
		covered_text const &text = message.texts[i];
		language_total &total = result.totals[i];
		if (!text.exists) {
			++total.missing;
		} else if (text.origin == result.languages[i]) {
			++total.own;
		} else {
			++total.inherited;
			++total.from[text.origin];
		}
	}
}

} // namespace

std::vector<std::string> target_languages(catalog_set const &set) {
	std::set<std::string> ids;
	for (std::string const &language : set.languages()) {
		ids.insert(normalised_language(language));
	}
	if (ids.size() > 1) {
		ids.erase(".");
	}
	return {ids.begin(), ids.end()};
}

std::string load_catalogs(message_catalogs &catalogs, std::vector<std::string> const &paths,
                          std::string const &language) {
	std::vector<ustring8> const files(paths.begin(), paths.end());
	auto const result = catalogs.load(files, ustring8(language));
	return result == message_catalogs::no_error ? std::string() : std::string(result.message());
}

coverage measure_coverage(std::vector<std::string> const &paths, progress_function const &progress) {
	catalog_set const set = read_catalog_set(paths, progress);
	coverage result;
	result.unreadable = set.unreadable;
	result.languages = target_languages(set);
	std::map<message_key, covered_message> messages;
	std::size_t const count = result.languages.size();
	for (std::size_t i = 0; i != count && result.fault.empty(); ++i) {
		if (progress) {
			progress(i, count);
		}
		result.fault = add_language(set.roots, result.languages[i], i, count, messages);
	}
	result.totals.resize(count);
	for (auto &[key, message] : messages) {
		message.catalog = key.first;
		message.key = key.second;
		add_total(result, message);
		result.messages.push_back(std::move(message));
	}
	return result;
}

std::string percentage(std::size_t part, std::size_t all) {
	// A share that isn't whole never shows as 100 or 0.
	std::size_t tenths = all == 0 ? 1000 : (part * 2000 + all) / (all * 2);
	if (part != all) {
		tenths = std::min<std::size_t>(tenths, 999);
	}
	if (part != 0) {
		tenths = std::max<std::size_t>(tenths, 1);
	}
	return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + "%";
}

} // namespace quor_cli
