#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include <quor/quor.hpp>

#include "catalog/argument_doubts.hpp"
#include "catalog/checker.hpp"
#include "catalog/language_id.hpp"
#include "catalog/samples.hpp"

namespace quor_cli {

namespace {

using quor::i18n::message_item;
using quor::strings::ustring8;

place place_of(catalog_use const &catalog) {
	place where;
	where.line = catalog.line;
	where.in_catalog = true;
	where.catalog = shortened(catalog.name);
	where.language = shortened(catalog.language);
	return where;
}

place place_of(catalog_use const &catalog, message_use const &message) {
	place where = place_of(catalog);
	where.line = message.line;
	where.in_message = true;
	where.message = shortened(message.name);
	return where;
}

void add_language_doubts(document const &read, catalog_use const &catalog, finding_list &findings) {
	auto const add = [&](finding_kind kind, std::string text) {
		findings.add({kind, read.file, place_of(catalog), std::move(text), {}});
	};
	if (catalog.name.empty()) {
		add(finding_kind::catalog_without_name, "the catalog has no name, so nobody can ask for its messages");
	}
	if (!catalog.loads && catalog.language.empty()) {
		add(finding_kind::catalog_without_lang,
		    "the catalog has no lang, so it is never loaded; lang=\".\" is for texts of every language");
	} else if (!catalog.loads) {
		add(finding_kind::language_unreachable,
		    "a request for the language \"" + catalog.language + "\" does not find this catalog");
	} else if (normalised_language(catalog.language) != catalog.language) {
		add(finding_kind::language_spelling, "write the language as \"" + normalised_language(catalog.language) +
		                                         "\": asked whether it is loaded, the program is told that \"" +
		                                         catalog.language + "\" is not");
	}
}

// --- over all files -------------------------------------------------------------------

// A message in one language, with the place where it stands first.
struct text_use {
	document const *read;
	catalog_use const *catalog;
	message_use const *message;
};
using message_key = std::pair<std::string, std::string>;
using texts_by_language = std::map<std::string, text_use>;

// A number and its unit may be placed and left out on their own.
message_item::type_t kind_of(argument_use const &argument) {
	std::string const *const word = argument.find("type");
	message_item::type_t const type = word != nullptr ? type_of_word(*word) : message_item::type_string;
	switch (type) {
	case message_item::type_memory_unit:
		return message_item::type_memory;
	case message_item::type_metric_unit:
		return message_item::type_metric;
	default:
		return type;
	}
}

// The arguments of a message with the types under which they are used.
std::map<std::string, std::set<message_item::type_t>> arguments_of(message_use const &message) {
	std::map<std::string, std::set<message_item::type_t>> result;
	for (argument_use const &argument : message.arguments) {
		if (message_item::type_t const type = kind_of(argument); type != message_item::type_value) {
			result[argument.name()].insert(type);
		}
	}
	return result;
}

std::string type_list(std::set<message_item::type_t> const &types) {
	std::string result;
	for (message_item::type_t const type : types) {
		result += (result.empty() ? "" : " and ") + type_word(type);
	}
	return result;
}

void compare_arguments(text_use const &reference, text_use const &other, finding_list &findings) {
	auto const wanted = arguments_of(*reference.message);
	auto const found = arguments_of(*other.message);
	std::string const language = shortened(reference.catalog->language);
	auto const add = [&](std::string const &name, std::string text) {
		place where = place_of(*other.catalog, *other.message);
		where.in_argument = true;
		where.argument = shortened(name);
		findings.add({finding_kind::arguments_differ, other.read->file, where, std::move(text), {}});
	};
	for (auto const &[name, types] : wanted) {
		auto const same = found.find(name);
		if (same == found.end()) {
			add(name, "the argument \"" + name + "\" is missing; the text for \"" + language + "\" has it");
		} else if (same->second != types) {
			add(name, "the argument \"" + name + "\" is of type " + type_list(same->second) + " here and of type " +
			              type_list(types) + " in the text for \"" + language + "\"");
		}
	}
	for (auto const &[name, types] : found) {
		if (wanted.count(name) == 0) {
			add(name, "the text for \"" + language + "\" has no argument \"" + name + "\"");
		}
	}
}

text_use const &reference_of(texts_by_language const &texts) {
	for (char const *language : {"en", "."}) {
		if (auto const found = texts.find(language); found != texts.end()) {
			return found->second;
		}
	}
	return texts.begin()->second;
}

void add_duplicate(text_use const &first, text_use const &second, finding_list &findings) {
	bool const same_file = first.read == second.read;
	std::string const place =
	    (same_file ? "" : "\"" + first.read->file + "\", ") + "line " + std::to_string(first.message->line);
	findings.add({finding_kind::duplicate_message,
	              second.read->file,
	              place_of(*second.catalog, *second.message),
	              "the message stands in this language already (" + place + ")" +
	                  (same_file ? ", and only the first text is used" : ""),
	              {}});
}

std::string lower_id(std::string const &id) {
	return quor::strings::lower_case(ustring8(normalised_language(id)));
}

// Ids that differ in case alone name different languages: all but the most used one of
// each spelling are doubtful.
void add_case_doubts(catalog_set const &set, finding_list &findings) {
	std::map<std::string, std::size_t> uses;
	for (auto const &[file, read] : set.documents) {
		for (catalog_use const &catalog : read.catalogs) {
			++uses[normalised_language(catalog.language)];
		}
	}
	std::map<std::string, std::pair<std::string, std::size_t>> usual;
	for (auto const &[id, count] : uses) {
		auto &best = usual[lower_id(id)];
		if (count > best.second) {
			best = {id, count};
		}
	}
	for (auto const &[file, read] : set.documents) {
		for (catalog_use const &catalog : read.catalogs) {
			std::string const &best = usual[lower_id(catalog.language)].first;
			if (best != normalised_language(catalog.language)) {
				findings.add({finding_kind::language_spelling,
				              read.file,
				              place_of(catalog),
				              "the language \"" + catalog.language + "\" is another one than \"" + best +
				                  "\" elsewhere: upper and lower case count",
				              {}});
			}
		}
	}
}

} // namespace

void add_document_doubts(document const &read, finding_list &findings) {
	for (catalog_use const &catalog : read.catalogs) {
		add_language_doubts(read, catalog, findings);
		for (message_use const &message : catalog.messages) {
			place const where = place_of(catalog, message);
			if (message.name.empty()) {
				findings.add({finding_kind::message_without_name,
				              read.file,
				              where,
				              "the message has no name, so nobody can ask for it",
				              {}});
			}
			for (argument_use const &argument : message.arguments) {
				add_argument_doubts(argument, read.file, where, findings);
			}
		}
	}
}

void add_set_doubts(catalog_set const &set, finding_list &findings) {
	std::map<message_key, texts_by_language> messages;
	for (auto const &[file, read] : set.documents) {
		for (catalog_use const &catalog : read.catalogs) {
			for (message_use const &message : catalog.messages) {
				text_use const use{&read, &catalog, &message};
				auto const [at, is_new] =
				    messages[{catalog.name, message.name}].emplace(normalised_language(catalog.language), use);
				if (!is_new) {
					add_duplicate(at->second, use, findings);
				}
			}
		}
	}
	for (auto const &[key, texts] : messages) {
		text_use const &reference = reference_of(texts);
		for (auto const &[language, use] : texts) {
			if (&use != &reference) {
				compare_arguments(reference, use, findings);
			}
		}
	}
	add_case_doubts(set, findings);
}

} // namespace quor_cli
