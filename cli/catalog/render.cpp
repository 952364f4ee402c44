#include "catalog/render.hpp"

#include <ostream>
#include <stdexcept>

#include <quor/quor.hpp>

#include "catalog/checker.hpp"
#include "catalog/coverage.hpp"
#include "catalog/samples.hpp"
#include "program.hpp"

namespace quor_cli {

namespace {

using quor::generic::varg_list;
using quor::i18n::message_catalogs;
using quor::i18n::message_t;
using quor::strings::ustring8;

// The text of a message: with the values given, or with sample values where none are.
std::string text_of(message_t const &message, render_request const &request) {
	varg_list arguments;
	for (auto const &[name, value] : request.values) {
		arguments.push_back(ustring8(name), ustring8(value));
	}
	if (request.values.empty()) {
		add_samples(message, arguments);
	}
	return message.as_string(arguments);
}

std::string indented(std::string text) {
	for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
		text.insert(at + 1, "    ");
	}
	return "    " + text;
}

// Renders the messages of one language that are asked for; returns their number.
std::size_t render_loaded(message_catalogs const &catalogs, render_request const &request, terminal &to) {
	std::size_t count = 0;
	for (auto const &[name, catalog] : catalogs) {
		if (!request.catalog.empty() && request.catalog != name) {
			continue;
		}
		for (auto const &[key, message] : *catalog) {
			if (!request.key.empty() && request.key != key) {
				continue;
			}
			++count;
			std::string const text = printable(text_of(message, request), true);
			if (!request.key.empty()) {
				to.out << text << '\n';
				continue;
			}
			to.out << coloured(printable(name + "/" + key), colour::bold, to.out_has_colours) << '\n'
			       << indented(text) << '\n';
		}
	}
	return count;
}

int not_found(render_request const &request, terminal &to) {
	to.err << "quor: there is no message";
	if (!request.key.empty()) {
		to.err << " \"" << printable(request.key) << '"';
	}
	if (!request.catalog.empty()) {
		to.err << " in a catalog \"" << printable(request.catalog) << '"';
	}
	to.err << " for the language \"" << printable(request.language) << "\"\n";
	return exit_findings;
}

int render_language(render_request const &request, terminal &to) {
	message_catalogs catalogs;
	if (std::string const fault = load_catalogs(catalogs, {request.path}, request.language); !fault.empty()) {
		to.err << "quor: " << printable(fault, true) << "\nquor catalog check tells more.\n";
		return exit_unusable;
	}
	return render_loaded(catalogs, request, to) != 0 ? exit_clean : not_found(request, to);
}

} // namespace

render_request parse_render_words(std::string const &path, std::vector<std::string> const &words, bool all_languages) {
	render_request request{path, {}, {}, {}, {}, all_languages};
	std::vector<std::string> names;
	for (std::string const &word : words) {
		std::size_t const equals = word.find('=');
		if (equals == std::string::npos) {
			if (!request.values.empty()) {
				throw std::invalid_argument("\"" + word + "\" stands behind a value and is none: write NAME=VALUE");
			}
			names.push_back(word);
		} else {
			request.values.emplace_back(word.substr(0, equals), word.substr(equals + 1));
		}
	}
	std::string *const targets[] = {&request.language, &request.catalog, &request.key};
	std::size_t next = all_languages ? 1 : 0;
	if (next == 0 && names.empty()) {
		throw std::invalid_argument("a language is required, or --all-languages");
	}
	for (std::string const &name : names) {
		if (next == std::size(targets)) {
			throw std::invalid_argument("there is a word too many: \"" + name + "\"");
		}
		*targets[next++] = name;
	}
	return request;
}

int render(render_request const &request, terminal &to) {
	if (!request.all_languages) {
		return render_language(request, to);
	}
	catalog_set const set = read_catalog_set({request.path}, {});
	if (!set.unreadable.empty()) {
		to.err << "quor: \"" << printable(set.unreadable.front()) << "\" can't be read\n";
		return exit_unusable;
	}
	int status = exit_clean;
	render_request one = request;
	for (std::string const &language : target_languages(set)) {
		to.out << coloured("[" + printable(language) + "]", colour::green, to.out_has_colours) << '\n';
		one.language = language;
		status = std::max<int>(status, render_language(one, to));
	}
	return status;
}

} // namespace quor_cli
