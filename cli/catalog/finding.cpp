#include "catalog/finding.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace quor_cli {

namespace {

constexpr std::array<std::string_view, 29> names = {
    "syntax",
    "root",
    "version",
    "attribute",
    "element",
    "content",
    "ending-word",
    "no-catalog",
    "include-missing",
    "include-unreadable",
    "include-cycle",
    "loader",
    "catalog-without-lang",
    "catalog-without-name",
    "language-unreachable",
    "language-spelling",
    "message-without-name",
    "duplicate-message",
    "encoding",
    "arguments-differ",
    "argument-without-name",
    "type-unknown",
    "type-reserved",
    "attribute-lost",
    "attribute-unused",
    "attribute-unknown",
    "attribute-value",
    "attribute-empty",
    "never-renders",
};
static_assert(names.size() == static_cast<std::size_t>(finding_kind::never_renders) + 1);

constexpr std::size_t longest_text = 4000;

std::string named(std::string const &element, std::string const &name) {
	return name.empty() ? element : element + " \"" + name + "\"";
}

} // namespace

std::string_view kind_name(finding_kind kind) {
	return names[static_cast<std::size_t>(kind)];
}

severity severity_of(finding_kind kind) {
	return kind <= finding_kind::loader ? severity::error : severity::warning;
}

std::string shortened(std::string_view text, std::size_t limit) {
	if (text.size() <= limit) {
		return std::string(text);
	}
	// Not inside a character.
	while (limit != 0 && (static_cast<unsigned char>(text[limit]) & 0xC0U) == 0x80) {
		--limit;
	}
	return std::string(text.substr(0, limit)).append("...");
}

std::vector<std::string> element_path(place const &where) {
	std::vector<std::string> path;
	if (where.in_catalog) {
		path.push_back(named("catalog", where.catalog) +
		               (where.language.empty() ? std::string() : " (" + where.language + ")"));
	}
	if (where.in_message) {
		path.push_back(named("msg", where.message));
	}
	if (where.in_argument) {
		path.push_back(named("arg", where.argument));
	}
	if (!where.element.empty()) {
		path.push_back(where.element);
	}
	return path;
}

void finding_list::add(finding found) {
	bool const is_error = severity_of(found.kind) == severity::error;
	++(is_error ? m_errors : m_warnings);
	if (is_error) {
		++m_files_with_errors[found.file];
	}
	file_findings &file = m_files[found.file];
	found.text = shortened(found.text, longest_text);
	found.loader = shortened(found.loader, longest_text);
	if (m_limit != 0 && file.kept.size() == m_limit) {
		++file.omitted;
	} else {
		file.kept.push_back(std::move(found));
	}
}

void finding_list::sort() {
	for (auto &[name, file] : m_files) {
		std::stable_sort(file.kept.begin(), file.kept.end(),
		                 [](finding const &left, finding const &right) { return left.where.line < right.where.line; });
	}
}

} // namespace quor_cli
