// The whole road from files on the disk to rendered text.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"
#include "support/xmc_file_text.hpp"

namespace {

using quor::i18n::message_catalogs;
using quor::strings::ustring8;
using quor::types::nil;
using quor_test::temporary_directory;
using quor_test::xmc;
using quor_test::xmc_catalog;
using quor_test::xmc_include;

using messages = std::vector<std::pair<std::string, std::string>>;

std::string rendered(message_catalogs const &catalogs, std::string const &key) {
	return catalogs.message("app", key).as_string(quor::generic::varg_list());
}

class catalog_set : public testing::Test {
protected:
	ustring8 path(std::string const &name = {}) const { return m_directory.path(name); }
	void write(std::string const &name, std::string const &content) const { m_directory.write(name, xmc(content)); }

	void load(std::string const &name, std::string const &language) {
		auto const result = m_catalogs.load(path(name), language);
		ASSERT_TRUE(result == message_catalogs::no_error) << result;
	}

	temporary_directory m_directory;
	message_catalogs m_catalogs;
};

std::vector<std::string> const languages{".", "en", "de", "de_AT"};

std::string key_of(unsigned subset) {
	std::string key = std::to_string(subset);
	key.insert(key.begin(), 'm');
	return key;
}

// One message for each set of languages, named by the bits of the set; its texts are the
// languages themselves.
std::string catalog_of_subsets(std::size_t language) {
	messages result;
	for (unsigned subset = 0; subset != 16; ++subset) {
		if ((subset >> language & 1U) != 0) {
			result.emplace_back(key_of(subset), languages[language]);
		}
	}
	return xmc_catalog("app", languages[language], result);
}

// The languages that a request accepts, weakest first, told one by one.
std::vector<std::pair<std::string, std::vector<std::string>>> const requests{
    {"", {".", "en"}},
    {".", {".", "en"}},
    {"en", {".", "en"}},
    {"fr", {".", "en"}},
    {"de", {".", "en", "de"}},
    {"de_DE", {".", "en", "de"}},
    {"de_AT", {".", "en", "de", "de_AT"}},
    {"de-AT", {".", "en", "de", "de_AT"}},
    {"de.AT", {".", "en", "de", "de_AT"}},
    {"de_AT_x", {".", "en", "de", "de_AT"}},
    {"DE_at", {".", "en"}},
};

TEST_F(catalog_set, best_language_wins_whatever_the_order_in_the_file) {
	std::vector<std::size_t> order{0, 1, 2, 3};
	do {
		std::string content;
		std::string trace;
		for (auto const language : order) {
			content += catalog_of_subsets(language);
			trace += languages[language];
			trace += ' ';
		}
		write("app.xmc", content);
		for (auto const &[request, accepted] : requests) {
			SCOPED_TRACE(testing::Message() << trace << "asked for " << request);
			message_catalogs catalogs;
			ASSERT_TRUE(catalogs.load(path("app.xmc"), request) == message_catalogs::no_error);
			for (unsigned subset = 0; subset != 16; ++subset) {
				std::string expected;
				for (auto const &language : accepted) {
					auto const at = std::find(languages.begin(), languages.end(), language) - languages.begin();
					if ((subset >> at & 1U) != 0) {
						expected = language;
					}
				}
				ASSERT_EQ(rendered(catalogs, key_of(subset)), expected) << subset;
			}
		}
	} while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(catalog_set, language_of_the_file_may_be_spelled_with_other_separators) {
	write("app.xmc", xmc_catalog("app", "de-AT", {{"a", "minus"}}) + xmc_catalog("app", "de.AT", {{"b", "dot"}}) +
	                     xmc_catalog("app", "de_AT", {{"c", "low line"}}) + xmc_catalog("app", "", {{"d", "none"}}));
	load("app.xmc", "de_AT");
	EXPECT_EQ(rendered(m_catalogs, "a"), "minus");
	EXPECT_EQ(rendered(m_catalogs, "b"), "dot");
	EXPECT_EQ(rendered(m_catalogs, "c"), "low line");
	EXPECT_FALSE(m_catalogs.has_message("app", "d"));
	EXPECT_EQ(m_catalogs.message("app", "a")._orginal_locale(), "de-AT");
	EXPECT_TRUE(m_catalogs.has_catalog("app", "de-AT"));
}

TEST_F(catalog_set, first_text_stays_within_a_load_and_the_newer_one_across_loads) {
	write("1.xmc", xmc_catalog("app", "de", {{"k", "1 first"}, {"k", "1 second"}}) +
	                   xmc_catalog("app", "de", {{"k", "1 third"}}));
	write("2.xmc", xmc_catalog("app", "de", {{"k", "2 first"}, {"k", "2 second"}}));
	write("weak.xmc", xmc_catalog("app", "en", {{"k", "english"}, {"new", "new"}}));
	load("1.xmc", "de");
	EXPECT_EQ(rendered(m_catalogs, "k"), "1 first");
	load("2.xmc", "de");
	EXPECT_EQ(rendered(m_catalogs, "k"), "2 first");
	load("weak.xmc", "de");
	EXPECT_EQ(rendered(m_catalogs, "k"), "2 first");
	EXPECT_EQ(rendered(m_catalogs, "new"), "new");
	load("1.xmc", "de");
	EXPECT_EQ(rendered(m_catalogs, "k"), "1 first");
}

TEST_F(catalog_set, weights_across_loads_are_those_of_the_last_request) {
	write("app.xmc", xmc_catalog("app", ".", {{"all", "neutral"}, {"neutral", "neutral"}, {"de too", "neutral"}}) +
	                     xmc_catalog("app", "de", {{"all", "deutsch"}, {"german", "deutsch"}, {"de too", "deutsch"}}) +
	                     xmc_catalog("app", "fr", {{"all", "francais"}, {"french", "francais"}}));
	load("app.xmc", "de");
	EXPECT_EQ(rendered(m_catalogs, "all"), "deutsch");
	EXPECT_FALSE(m_catalogs.has_message("app", "french"));
	load("app.xmc", "fr");
	EXPECT_EQ(rendered(m_catalogs, "all"), "francais");
	EXPECT_EQ(rendered(m_catalogs, "french"), "francais");
	EXPECT_EQ(rendered(m_catalogs, "neutral"), "neutral");
	// A text of a language that this request doesn't know gives way to any.
	EXPECT_EQ(rendered(m_catalogs, "de too"), "neutral");
	// Nothing takes the place of this one.
	EXPECT_EQ(rendered(m_catalogs, "german"), "deutsch");
	m_catalogs.erase();
	load("app.xmc", "fr");
	EXPECT_FALSE(m_catalogs.has_message("app", "german"));
}

TEST_F(catalog_set, includes_are_found_beside_the_file_that_names_them) {
	write("main.xmc",
	      xmc_include("sub/one.xmc") + xmc_catalog("app", "en", {{"main", "main"}}) + xmc_include("two.xmc"));
	write("sub/one.xmc", xmc_include("deep\\three.xmc") + xmc_catalog("app", "en", {{"one", "one"}}));
	write("sub/deep/three.xmc", xmc_catalog("app", "en", {{"three", "three"}}));
	write("two.xmc", xmc_catalog("app", "en", {{"two", "two"}}));
	load("main.xmc", "en");
	for (char const *key : {"main", "one", "two", "three"}) {
		EXPECT_EQ(rendered(m_catalogs, key), key);
	}
}

TEST_F(catalog_set, directory_loads_the_files_with_a_catalog_suffix) {
	std::vector<std::pair<std::string, bool>> const names{
	    {"a.xmc", true},          {"b.XMC", true},        {"c.xml", true},     {"d.XmL", true},
	    {".xmc", true},           {".xml", true},         {"e.txt", false},    {"f.xmc.bak", false},
	    {"xmc", false},           {"g.xm", false},        {"h.xmcx", false},   {"ixmc", false},
	    {"j.xmd", false},         {"k..xml", true},       {"sub/l.xmc", true}, {"sub/deep/m.Xml", true},
	    {"sub.xmc/n.txt", false}, {"sub.xmc/o.xmc", true}};
	for (auto const &[name, loaded] : names) {
		write(name, xmc_catalog("app", "en", {{name, name}}));
	}
	load("", "en");
	std::size_t count = 0;
	for (auto const &[name, loaded] : names) {
		SCOPED_TRACE(name);
		EXPECT_EQ(m_catalogs.has_message("app", name), loaded);
		EXPECT_EQ(rendered(m_catalogs, name), loaded ? name : "");
		count += loaded ? 1U : 0U;
	}
	EXPECT_EQ(m_catalogs.size("app"), count);
}

TEST_F(catalog_set, single_file_is_loaded_whatever_its_suffix) {
	write("app.txt", xmc_catalog("app", "en", {{"k", "text"}}));
	load("app.txt", "en");
	EXPECT_EQ(rendered(m_catalogs, "k"), "text");
}

TEST_F(catalog_set, broken_file_in_a_subdirectory_stops_the_load_with_its_text) {
	m_directory.write("d/s/bad.xmc", "<?xml version=\"1.0\"?><xmc version=\"1.1\"><catalog name=\"app\" lang=\"en\">"
	                                 "<msg name=\"k\"><b/></msg></catalog></xmc>");
	auto const result = m_catalogs.load(path("d"), "en");
	EXPECT_TRUE(result == message_catalogs::load_failed);
	EXPECT_EQ(result.message(), "message_catalogs::result_type - XMC file is not valid\n "
	                            "xmc_file_loader::load_error - Invalid element \"b\""
	                            "\n in message element: \"k\""
	                            "\n in catalog element: \"app\""
	                            "\n in file: \"" +
	                                path("d\\s\\bad.xmc") + "\"");
	EXPECT_TRUE(m_catalogs == nil);
}

TEST_F(catalog_set, broken_file_that_is_included_names_both_files) {
	m_directory.write("s/bad.xmc", "<?xml version=\"1.0\"?><xmc version=\"2.0\"></xmc>");
	write("main.xmc", xmc_catalog("app", "en", {{"k", "text"}}) + xmc_include("s/bad.xmc"));
	auto const result = m_catalogs.load(path("main.xmc"), "en");
	EXPECT_TRUE(result == message_catalogs::load_failed);
	ustring8 const base = path("");
	EXPECT_EQ(result.message(), "message_catalogs::result_type - XMC file is not valid\n "
	                            "xmc_file_loader::load_error - XMC version \"2.0\" is not supported"
	                            "\n in file: \"" +
	                                base + "\\s/bad.xmc\"" + "\n in file: \"" + path("main.xmc") + "\"");
	EXPECT_TRUE(m_catalogs == nil);
}

TEST_F(catalog_set, file_that_is_no_xml_or_empty_is_a_fault) {
	for (auto const &content :
	     {std::string(), std::string("text"), std::string("<?xml?><xmc"), std::string(1000, '\0')}) {
		SCOPED_TRACE(testing::PrintToString(content.substr(0, 20)));
		m_directory.write("d/f.xmc", content);
		for (auto const &result : {m_catalogs.load(path("d"), "en"), m_catalogs.load(path("d\\f.xmc"), "en")}) {
			EXPECT_TRUE(result == message_catalogs::load_failed);
			EXPECT_EQ(result.message().find("message_catalogs::result_type - XML parse error, XML file not well "
			                                "formed\n xmc_file_loader::load_error - "),
			          0U);
		}
	}
}

TEST_F(catalog_set, file_without_catalogs_is_no_catalog) {
	write("f.xmc", "");
	auto const result = m_catalogs.load(path("f.xmc"), "en");
	EXPECT_TRUE(result == message_catalogs::no_catalog);
	EXPECT_EQ(result.message(), "message_catalogs::result_type - No catalog was loaded\n "
	                            "xmc_file_loader::load_error - No catalog was loaded in file: \"" +
	                                path("f.xmc") + "\"");
}

TEST_F(catalog_set, what_was_merged_before_a_fault_stays) {
	write("good.xmc", xmc_catalog("app", "en", {{"k", "text"}}));
	m_directory.write("bad/bad.xmc", "no xml");
	auto const result = m_catalogs.load(std::vector<ustring8>{path("good.xmc"), path("bad")}, "en");
	EXPECT_TRUE(result == message_catalogs::load_failed);
	EXPECT_EQ(rendered(m_catalogs, "k"), "text");
}

TEST_F(catalog_set, results_of_directories) {
	m_directory.make_directory("empty/below");
	write("full/f.xmc", xmc_catalog("app", "en", {}));
	m_directory.write("other/f.txt", "no catalog");
	std::string const plain = "message_catalogs::result_type - No Error";
	std::string const loaded = plain + "\n xmc_file_loader::load_error - No Error";
	for (auto const &[name, text] :
	     {std::pair<std::string, std::string>("empty", plain), {"full", loaded}, {"other", plain}}) {
		SCOPED_TRACE(name);
		auto const result = m_catalogs.load(path(name), "en");
		EXPECT_TRUE(result == message_catalogs::no_error);
		EXPECT_EQ(result.message(), text);
	}
	// A file is no directory to list, but it is there.
	auto const result = m_catalogs.load_directory(path("full\\f.xmc"), "en");
	EXPECT_TRUE(result == message_catalogs::no_error);
	EXPECT_EQ(result.message(), plain);
}

// The listing's order is the system's, so the test asks for it.
TEST_F(catalog_set, directory_is_loaded_in_listing_order_up_to_the_first_fault) {
	std::vector<std::string> const good{"a.xmc", "b.xmc", "c.xmc", "d.xmc", "e.xmc", "f.xmc", "g.xmc"};
	for (auto const &name : good) {
		write("d/" + name, xmc_catalog("app", "en", {{name, name}}));
	}
	for (auto const &name : good) {
		SCOPED_TRACE(name);
		m_directory.write("d/" + name, "no xml");
		m_catalogs.erase();
		auto const result = m_catalogs.load_directory(path("d"), "en");
		EXPECT_TRUE(result == message_catalogs::load_failed);
		EXPECT_NE(result.message().find("\n in file: \"" + path("d\\" + name) + "\""), ustring8::npos);
		bool before = true;
		for (auto const &entry : quor::system::list_directory(path("d"))) {
			auto const key = entry.substr(entry.size() - 5);
			before = before && key != name;
			EXPECT_EQ(m_catalogs.has_message("app", key), before) << key;
		}
		write("d/" + name, xmc_catalog("app", "en", {{name, name}}));
	}
}

TEST_F(catalog_set, result_of_a_directory_is_that_of_its_last_entry) {
	std::string const plain = "message_catalogs::result_type - No Error";
	std::string const loaded = plain + "\n xmc_file_loader::load_error - No Error";
	for (char const *name : {"d/1", "d/2", "d/3", "d/4/5", "d/6/7/8", "d/9/10"}) {
		m_directory.make_directory(name);
		write(std::string(name) + ".xmc", xmc_catalog("app", "en", {}));
		SCOPED_TRACE(name);
		ustring8 last = path("d");
		while (quor::system::io::is_directory(last)) {
			auto const entries = quor::system::list_directory(last);
			if (entries.empty()) {
				break;
			}
			last = entries.back();
		}
		EXPECT_EQ(m_catalogs.load(path("d"), "en").message(), quor::system::io::is_file(last) ? loaded : plain);
	}
}

TEST_F(catalog_set, load_file_of_a_directory_is_a_fault) {
	m_directory.make_directory("d.xmc");
	EXPECT_TRUE(m_catalogs.load_file(path("d.xmc"), "en") == message_catalogs::load_failed);
	EXPECT_TRUE(m_catalogs.load_directory(path("d.xmc"), "en") == message_catalogs::no_error);
}

TEST_F(catalog_set, messages_render_their_typed_arguments) {
	write("app.xmc",
	      "<catalog name=\"app\" lang=\".\"><msg name=\"used\" meta=\"m\"> Used <arg name=\"n\" type=\"memory\"/>"
	      " <arg name=\"n\" type=\"mem_unit\"/><br/>in <arg name=\"who\"/></msg></catalog>");
	load("app.xmc", "de");
	quor::generic::varg_list args;
	args.push_back("n", 2048);
	args.push_back("who", "\xC3\xA4\xF0\x9F\x98\x80");
	auto const &message = m_catalogs.message("app", "used");
	EXPECT_EQ(message.as_string(args), "Used 2 KB\nin \xC3\xA4\xF0\x9F\x98\x80");
	EXPECT_EQ(message.meta(), "m");
	EXPECT_EQ(message.name(), "used");
	EXPECT_EQ(message._orginal_locale(), ".");
}

} // namespace
