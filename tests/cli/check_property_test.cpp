// The checker finds an error in a file exactly when the loader refuses it for some language.

#include <gtest/gtest.h>

#include <random>
#include <regex>
#include <set>

#include <quor/quor.hpp>

#include "catalog/checker.hpp"
#include "support/debug_capture.hpp"
#include "support/temporary_directory.hpp"

namespace {

using loader = quor::i18n::_private::xmc_file_loader;
using quor::strings::ustring8;

std::string const seeds[] = {
    "<?xml version=\"1.0\"?>\n<xmc version=\"1.0\">\n\t<catalog name=\"a\" lang=\"en\">\n\t\t<msg name=\"m\">Used <arg "
    "name=\"n\" type=\"memory\"/> <arg name=\"n\" type=\"mem_unit\"/><br/>in</msg>\n\t\t<msg name=\"o\" meta=\"x\">a  "
    "b</msg>\n\t</catalog>\n\t<!-- c -->\n\t<catalog name=\"a\" lang=\"de\"><msg name=\"m\">x<!-- y "
    "--></msg></catalog>\n"
    "</xmc>\n",
    "<?xml?><xmc version=\"1.1\"> <catalog lang=\".\" name=\"b\"><msg name=\"p\"><argument "
    "name=\"q\">text</argument>msg "
    "</msg></catalog><catalog name=\"c\"><msg><b/></msg></catalog><catalog name=\"d\" lang=\"fr_CA\"></catalog></xmc>",
    "\xEF\xBB\xBF<?xml ?><xmc version='1.1'> <catalog name='&lt;' lang='_x'> <msg name='&#65;'>&amp; <br></br> "
    "</msg> </catalog> <catalog name='e'> <msg name='z'>z</msg> </catalog> </xmc> end",
};

std::string const words[] = {
    "<msg name=\"k\">",
    "</msg>",
    "<arg name=\"a\"/>",
    "<arg name=\"a\">",
    "</arg>",
    "msg",
    "arg",
    "<br/>",
    "<!--",
    "-->",
    "<!-- msg -->",
    "<!--arg-->",
    "<b>",
    "</b>",
    "\"",
    "<",
    ">",
    "/>",
    "&",
    "&amp;",
    " ",
    "  ",
    "\n\n",
    "</catalog>",
    "<catalog name=\"x\" lang=\"de\">",
    "<catalog lang=\"it\"/>",
    "<catalog>",
    "</xmc>",
    "<xmc>",
    "<include file=\"\"/>",
    "<include file=\"none\"/>",
    "lang=\"es\"",
    "name=\"y\"",
    "x=\"1\"",
    "lang=\"\"",
    "<msg/>",
    "<arg>",
    "<argument/>",
    std::string(1, '\0'),
    "\x1B[31m",
    "</msg/>",
    "<a/>",
    "arg</arg>",
    "<msg>",
};

// What can stand between two tags without breaking the text's XML.
std::string const balanced[] = {
    "<msg name=\"k\">x</msg>",
    "<msg/>",
    "<arg name=\"a\"/>",
    "<arg name=\"a\">arg</arg>",
    "<arg>argument </arg>",
    "<br/>",
    "<br> </br>",
    "<br x=\"1\"/>",
    "<!-- msg -->",
    "<!--msg-->",
    "<!--arg-->",
    "<!--argument-->",
    "msg",
    "arg",
    " ",
    "  ",
    "x",
    "<b/>",
    "<catalog lang=\"it\"/>",
    "<catalog name=\"n\" lang=\"_\"><msg/></catalog>",
    "<catalog name=\"n\"><b/></catalog>",
    "<catalog lang=\"de-\"><b/></catalog>",
    "<arg><arg/></arg>",
    "<msg>msg</msg>",
    "<arg><br/></arg>",
    "<msg/><msg/>",
    "<include file=\"none\"/>",
    "<argument><!--argument--></argument>",
};

class mutation {
public:
	explicit mutation(unsigned seed) : m_random(seed) {}

	std::string text() {
		std::string result = seeds[below(std::size(seeds))];
		bool const is_balanced = below(4) != 0;
		for (std::size_t count = 1 + below(3); count != 0; --count) {
			if (is_balanced) {
				insert_balanced(result);
			} else {
				change(result);
			}
		}
		return result;
	}

private:
	std::size_t below(std::size_t bound) { return m_random() % bound; }

	void insert_balanced(std::string &text) {
		std::size_t const at = std::min(text.find('>', below(text.size())), text.rfind('>'));
		// Not into a comment, whose text may hold anything.
		if (text.compare(at - 2, 3, "-->") != 0) {
			text.insert(at + 1, balanced[below(std::size(balanced))]);
		}
	}

	void change(std::string &text) {
		std::size_t const at = below(text.size() + 1);
		std::size_t const size = std::min(below(12), text.size() - at);
		switch (below(5)) {
		case 0:
			text.erase(at, size);
			break;
		case 1:
			text.insert(at, text.substr(below(text.size()), below(40)));
			break;
		case 2: // between two tags or words
			text.insert(std::min(text.find_first_of("<> ", at), text.size()), words[below(std::size(words))]);
			break;
		case 3: // behind a tag
			text.insert(std::min(text.find('>', at), text.size() - 1) + 1, words[below(std::size(words))]);
			break;
		default:
			text.insert(at, words[below(std::size(words))]);
		}
		if (text.empty()) {
			text = " ";
		}
	}

	std::mt19937 m_random;
};

bool loads_for_every_language(std::string const &file, std::string const &text) {
	std::set<std::string> languages{""};
	static std::regex const language("lang\\s*=\\s*[\"']([^\"']*)[\"']");
	for (std::sregex_iterator it(text.begin(), text.end(), language), end; it != end; ++it) {
		languages.insert((*it)[1]);
	}
	for (std::string const &each : languages) {
		if (loader().parse(ustring8(file), ustring8(each)).type() != loader::load_none) {
			return false;
		}
	}
	return true;
}

TEST(check_property, an_error_is_found_exactly_where_the_loader_refuses) {
	quor_test::temporary_directory const directory;
	std::string const file = (directory.root() / "m.xmc").string();
	quor_test::debug_capture const quiet;
	std::size_t refused = 0;
	std::size_t structure = 0;
	std::size_t const count = 4000;
	for (unsigned seed = 0; seed != count; ++seed) {
		std::string const text = mutation(seed).text();
		directory.write("m.xmc", text);
		auto const result = quor_cli::check_catalogs({file}, 0);
		bool const loads = loads_for_every_language(file, text);
		refused += loads ? 0 : 1;
		ASSERT_EQ(loads, result.findings.errors() == 0) << "seed " << seed << "\n" << text;
		for (auto const &[name, found] : result.findings.files()) {
			for (quor_cli::finding const &each : found.kept) {
				structure += each.kind == quor_cli::finding_kind::syntax ? 0 : 1;
				ASSERT_NE(quor_cli::finding_kind::loader, each.kind) << "seed " << seed << "\n" << text << each.loader;
			}
		}
	}
	// Both sides are met often.
	EXPECT_GT(structure, count / 3);
	EXPECT_GT(refused, count / 5);
	EXPECT_LT(refused, count - count / 10);
}

} // namespace
