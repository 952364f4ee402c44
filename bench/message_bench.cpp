// Messages of a catalog, looked up by name and filled in.

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "message/competition.hpp"

namespace message_bench {
namespace {

using quor::strings::ustring8;

class catalog_store {
public:
	explicit catalog_store(std::vector<sample> const &samples) {
		std::string const path = QUOR_BENCH_FOLDER "/message_bench.xmc";
		std::ofstream file(path, std::ios::binary);
		file << "<?xml version=\"1.0\"?>\n<xmc version=\"1.1\">\n<catalog name=\"app\" lang=\"en\">\n";
		for (sample const &one : samples) {
			file << "<msg name=\"" << one.key << "\">"
			     << pattern_with(one.pattern, R"(<arg name="name"/>)", R"(<arg name="count" type="int"/>)",
			                     R"(<arg name="seconds" type="double"/>)")
			     << "</msg>\n";
		}
		file << "</catalog>\n</xmc>\n";
		file.close();
		m_catalogs.load(ustring8(path), "en");
		std::remove(path.c_str());
	}

	static quor::generic::varg_list arguments(sample const &one) {
		quor::generic::varg_list result;
		result.push_back("name", one.name);
		result.push_back("count", one.count);
		result.push_back("seconds", one.seconds);
		return result;
	}

	std::string render(char const *key, quor::generic::varg_list const &arguments) const {
		return m_catalogs.message("app", key).as_string(arguments);
	}

	static std::string plain(std::string text) { return text; }

private:
	quor::i18n::message_catalogs m_catalogs;
};

void describe() {
	compete<catalog_store>(bench::library);
	bench::limit(render_name, "fmt", 1.05, 0.8);
	bench::limit(render_name, "ICU", 0.2);
	bench::limit(render_name, "Boost.Locale", 0.2);
}

bench::entry const added(&describe);

} // namespace

std::vector<sample> const &samples() {
	static std::vector<sample> const result = [] {
		char const *const patterns[] = {"File {name} has {count} lines, read in {seconds} seconds.",
		                                "{count} files of {name} are up to date after {seconds} s",
		                                "{name}: {count} of 1000 done, {seconds} seconds to go",
		                                "The server {name} answered attempt {count} within {seconds} seconds."};
		char const *const names[] = {"notes.txt", "heron", "photos/2019/summer", "a"};
		std::vector<sample> list;
		for (int i = 0; i != 200; ++i) {
			sample one;
			one.key = (i % 2 == 0 ? "status_" : "failure.") + std::to_string(1000 + i);
			one.pattern = patterns[i % 4];
			one.name = names[i / 4 % 4];
			one.count = i * i * 5 % 1000;
			one.seconds = (i * 37 % 4000) / 64.0;
			char seconds[32];
			std::snprintf(seconds, sizeof seconds, "%.2f", one.seconds);
			one.expected = pattern_with(one.pattern, one.name, std::to_string(one.count), seconds);
			list.push_back(one);
		}
		return list;
	}();
	return result;
}

std::string pattern_with(std::string pattern, std::string const &name, std::string const &count,
                         std::string const &seconds) {
	struct replacement {
		std::string place;
		std::string const &text;
	};
	for (replacement const &one :
	     {replacement{"{name}", name}, replacement{"{count}", count}, replacement{"{seconds}", seconds}}) {
		pattern.replace(pattern.find(one.place), one.place.size(), one.text);
	}
	return pattern;
}

} // namespace message_bench
