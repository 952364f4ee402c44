#include "catalog/checker.hpp"

#include <algorithm>
#include <deque>
#include <utility>

#include <quor/quor.hpp>

#include "catalog/file_names.hpp"

namespace quor_cli {

namespace {

using quor::i18n::_private::xmc_file_loader;
using quor::strings::ustring8;
using load_error = xmc_file_loader::load_error;

// A file is loaded for this many of its languages, and for all of them while that reads
// no more than this many bytes.
constexpr std::size_t sure_languages = 64;
constexpr std::size_t most_bytes = 256 << 20;

std::string loader_text(xmc_file_loader::error_type type, std::string const &data, std::string const &file) {
	load_error error(type, ustring8(data));
	error.append_error_stack(load_error::append_file, ustring8(file));
	return error.message();
}

void add_include_fault(document &from, include_use const &include, finding_kind kind, std::string text,
                       std::string loader) {
	finding found{kind, from.file, {}, std::move(text), std::move(loader)};
	found.where.line = include.line;
	found.where.element = "include";
	from.faults.push_back(std::move(found));
}

// Reads files and what they include, each once.
class set_reader {
public:
	explicit set_reader(catalog_set &set) : m_set(set) {}

	// Reads a file that a path leads to.
	void read_root(std::string const &path) {
		std::string const file = m_names.first_spelling(path);
		if (m_set.documents.count(file) == 0 && !read(file)) {
			m_set.unreadable.push_back(path);
			return;
		}
		m_set.roots.push_back(file);
		for (m_queue.push_back(file); !m_queue.empty(); m_queue.pop_front()) {
			read_includes(m_set.documents.at(m_queue.front()));
		}
	}

private:
	// False if the file doesn't open.
	bool read(std::string const &file) {
		std::string text;
		if (quor::system::load_file(ustring8(file), text) != 0) {
			return false;
		}
		m_set.documents.emplace(file, read_document(file, text));
		return true;
	}

	void read_includes(document &from) {
		for (include_use &include : from.includes) {
			if (!quor::system::io::exists(ustring8(include.path))) {
				add_include_fault(from, include, finding_kind::include_missing,
				                  "the included file \"" + include.path + "\" does not exist",
				                  loader_text(xmc_file_loader::load_file_not_found, include.path, from.file));
				continue;
			}
			include.path = m_names.first_spelling(include.path);
			if (m_set.documents.count(include.path) != 0) {
				continue;
			}
			if (read(include.path)) {
				m_queue.push_back(include.path);
			} else {
				add_unreadable(from, include);
			}
		}
	}

	static void add_unreadable(document &from, include_use const &include) {
		using parse_error = quor::parser::xml_parser::parse_error;
		load_error error(xmc_file_loader::load_xml_error, parse_error(parse_error::error_bad_header, 0, ""));
		error.append_error_stack(load_error::append_file, ustring8(include.path));
		error.append_error_stack(load_error::append_file, ustring8(from.file));
		add_include_fault(from, include, finding_kind::include_unreadable,
		                  "the included file \"" + include.path + "\" can't be read", error.message());
	}

	catalog_set &m_set;
	file_names m_names;
	std::deque<std::string> m_queue;
};

// Finds includes that lead back to a file that is being included.
class cycle_search {
public:
	explicit cycle_search(catalog_set &set) : m_set(set) {}

	void run() {
		for (auto const &[file, read] : m_set.documents) {
			if (m_state[file] == state::unseen) {
				walk(file);
			}
		}
	}

private:
	enum class state { unseen, open, done };
	struct level {
		document *from;
		std::size_t next;
	};

	void walk(std::string const &file) {
		std::vector<level> open{{&m_set.documents.at(file), 0}};
		m_state[file] = state::open;
		while (!open.empty()) {
			document &from = *open.back().from;
			if (open.back().next == from.includes.size()) {
				m_state[from.file] = state::done;
				open.pop_back();
				continue;
			}
			include_use const include = from.includes[open.back().next++];
			auto const target = m_set.documents.find(include.path);
			if (target == m_set.documents.end()) {
				continue;
			}
			if (m_state[include.path] == state::open) {
				add_include_fault(from, include, finding_kind::include_cycle,
				                  include.path == from.file
				                      ? std::string("the file includes itself")
				                      : "\"" + include.path + "\" includes this file in turn, so loading never ends",
				                  loader_text(xmc_file_loader::load_unexpected, "", from.file));
			} else if (m_state[include.path] == state::unseen) {
				m_state[include.path] = state::open;
				open.push_back({&target->second, 0});
			}
		}
	}

	catalog_set &m_set;
	std::map<std::string, state> m_state;
};

// The files that loading one file reads.
std::set<std::string> tree_of(catalog_set const &set, std::string const &root) {
	std::set<std::string> tree{root};
	std::deque<std::string> queue{root};
	while (!queue.empty()) {
		auto const found = set.documents.find(queue.front());
		queue.pop_front();
		if (found == set.documents.end()) {
			continue;
		}
		for (include_use const &include : found->second.includes) {
			if (tree.insert(include.path).second) {
				queue.push_back(include.path);
			}
		}
	}
	return tree;
}

// Why a file doesn't load in which nothing is wrong.
std::string refusal_words(load_error const &error, std::string const &language) {
	if (error.type() == xmc_file_loader::load_unexpected) {
		return "the files include each other more than " + std::to_string(xmc_file_loader::max_include_depth) +
		       " deep, or more than " + std::to_string(xmc_file_loader::max_files) + " times in all";
	}
	return "the file does not load for the language \"" + (language.empty() ? "en" : language) + "\"";
}

// Loads a file for every language in it, to be sure that nothing was missed. Files that it
// includes are loaded with it, and entered as confirmed.
void confirm(catalog_set const &set, std::string const &root, std::set<std::string> &confirmed,
             finding_list &findings) {
	std::set<std::string> languages{""};
	std::size_t bytes = 0;
	std::set<std::string> const tree = tree_of(set, root);
	for (std::string const &file : tree) {
		auto const found = set.documents.find(file);
		if (found == set.documents.end() || findings.has_error(file)) {
			return;
		}
		bytes += found->second.size;
		for (catalog_use const &catalog : found->second.catalogs) {
			languages.insert(catalog.language);
		}
	}
	confirmed.insert(tree.begin(), tree.end());
	std::size_t count = 0;
	for (std::string const &language : languages) {
		if (++count > sure_languages && count * bytes > most_bytes) {
			return;
		}
		xmc_file_loader loader;
		load_error const error = loader.parse(ustring8(root), ustring8(language));
		if (error.type() != xmc_file_loader::load_none) {
			findings.add({finding_kind::loader, root, {}, refusal_words(error, language), error.message()});
			return;
		}
	}
}

// Begins with the files that nobody includes, as they load the others along.
void confirm_all(catalog_set const &set, finding_list &findings, progress_function const &progress) {
	std::set<std::string> included;
	for (auto const &[file, read] : set.documents) {
		for (include_use const &include : read.includes) {
			included.insert(include.path);
		}
	}
	std::set<std::string> confirmed;
	for (bool const with_included : {false, true}) {
		std::size_t done = set.roots.size();
		for (std::string const &root : set.roots) {
			// The first half is the reading.
			if (progress && !with_included) {
				progress(done++, set.roots.size() * 2);
			}
			if ((with_included || included.count(root) == 0) && confirmed.count(root) == 0) {
				confirm(set, root, confirmed, findings);
			}
		}
	}
}

} // namespace

std::set<std::string> catalog_set::languages() const {
	std::set<std::string> result;
	for (auto const &[file, read] : documents) {
		for (catalog_use const &catalog : read.catalogs) {
			if (!catalog.language.empty() && catalog.loads) {
				result.insert(catalog.language);
			}
		}
	}
	return result;
}

catalog_set read_catalog_set(std::vector<std::string> const &paths, progress_function const &progress) {
	catalog_set set;
	catalog_files const found = find_catalog_files(paths);
	set.unreadable = found.unreadable;
	set_reader reader(set);
	std::size_t done = 0;
	for (std::string const &file : found.files) {
		if (progress) {
			progress(done++, found.files.size());
		}
		reader.read_root(file);
	}
	cycle_search(set).run();
	return set;
}

check_result check_catalogs(std::vector<std::string> const &paths, std::size_t limit,
                            progress_function const &progress) {
	catalog_set const set = read_catalog_set(paths, [&progress](std::size_t done, std::size_t all) {
		if (progress) {
			progress(done, all * 2);
		}
	});
	check_result result;
	result.findings = finding_list(limit);
	result.unreadable = set.unreadable;
	result.files = set.documents.size();
	result.languages = set.languages().size();
	std::set<std::string> catalogs;
	for (auto const &[file, read] : set.documents) {
		for (finding const &fault : read.faults) {
			result.findings.add(fault);
		}
		add_document_doubts(read, result.findings);
		for (catalog_use const &catalog : read.catalogs) {
			catalogs.insert(catalog.name);
			result.messages += catalog.messages.size();
		}
	}
	result.catalogs = catalogs.size();
	add_set_doubts(set, result.findings);
	confirm_all(set, result.findings, progress);
	result.findings.sort();
	return result;
}

} // namespace quor_cli
