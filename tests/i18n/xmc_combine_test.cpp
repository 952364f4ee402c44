// The merge of what a loader has read into a set of catalogs.

#include <gtest/gtest.h>

#include <cstring>

#include <quor/i18n/xmc_file_loader.hpp>

#include "support/xmc_text.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::strings::ustring8;
using quor_test::xmc_loader;

std::string catalog(std::string const &name, std::string const &lang, std::string const &text) {
	return "<catalog name=\"" + name + "\" lang=\"" + lang + "\"><msg name=\"m\">" + text + "</msg></catalog>";
}

// Loads a text with one language and merges it.
unsigned int load(xmc_loader::catalog_map &catalogs, std::string const &content, std::string const &language) {
	xmc_loader loader;
	loader.handle_language(ustring8(language));
	EXPECT_EQ(loader.parse_string(ustring8("<?xml?><xmc version='1.0'>" + content + "</xmc>"), "f").type(), 0);
	return loader.combine_data(catalogs);
}

TEST(xmc_combine, combine_data_makes_catalogs_and_counts_messages) {
	xmc_loader::catalog_map catalogs;
	EXPECT_EQ(load(catalogs, catalog("a", ".", "1") + catalog("b", ".", "2") + "<catalog name='c' lang='.'/>", ""), 2U);
	EXPECT_EQ(quor_test::xmc_text(catalogs), "a: m(.)=1 | b: m(.)=2 | c:");
	EXPECT_EQ(catalogs["a"]->name(), "a");
	EXPECT_EQ(xmc_loader().combine_data(catalogs), 0U);
}

TEST(xmc_combine, combine_data_new_catalogs_are_counted_objects) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, catalog("a", ".", "1"), "");
	EXPECT_TRUE(catalogs["a"]->is_created_dynamic());
	EXPECT_EQ(catalogs["a"]->get_ref_count(), 1U);
}

TEST(xmc_combine, combine_data_newer_text_wins_a_tie_and_a_heavier_one_stays) {
	struct row {
		std::string first;
		std::string first_language;
		std::string second;
		std::string second_language;
		unsigned int count;
		std::string result;
	};
	std::vector<row> const rows = {
	    {".", "", ".", "", 1, "a: m(.)=2"},
	    {"en", "", ".", "", 0, "a: m(en)=1"},
	    {".", "", "en", "", 1, "a: m(en)=2"},
	    {"de", "de", "de", "de", 1, "a: m(de)=2"},
	    {"de_AT", "de_AT", "de", "de_AT", 0, "a: m(de_AT)=1"},
	    {"de_AT", "de_AT", "de", "de", 1, "a: m(de)=2"},
	    {"de", "de", "fr", "fr", 1, "a: m(fr)=2"},
	    {"de", "de", ".", "fr", 1, "a: m(.)=2"},
	    {"de", "de", "en", "de", 0, "a: m(de)=1"},
	    {"de-AT", "de_AT", "de.AT", "de_AT", 1, "a: m(de.AT)=2"},
	};
	for (row const &expected : rows) {
		SCOPED_TRACE(expected.first + " then " + expected.second);
		xmc_loader::catalog_map catalogs;
		EXPECT_EQ(load(catalogs, catalog("a", expected.first, "1"), expected.first_language), 1U);
		EXPECT_EQ(load(catalogs, catalog("a", expected.second, "2"), expected.second_language), expected.count);
		EXPECT_EQ(quor_test::xmc_text(catalogs), expected.result);
	}
}

TEST(xmc_combine, combine_data_keeps_what_is_not_in_the_load) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, catalog("a", ".", "1") + catalog("b", ".", "2"), "");
	auto const held = catalogs["a"];
	EXPECT_EQ(load(catalogs, "<catalog name='a' lang='.'><msg name='n'>3</msg></catalog>", ""), 1U);
	EXPECT_EQ(quor_test::xmc_text(catalogs), "a: m(.)=1; n(.)=3 | b: m(.)=2");
	// The catalog itself has changed, for all that hold it.
	EXPECT_EQ(held->size(), 2U);
}

TEST(xmc_combine, combine_data_sets_the_name_of_a_catalog_that_is_there) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, catalog("a", ".", "1"), "");
	catalogs["a"]->_name("other");
	load(catalogs, catalog("a", ".", "2"), "");
	EXPECT_EQ(catalogs["a"]->name(), "a");
}

TEST(xmc_combine, combine_data_null_catalog_throws_a_plain_text) {
	xmc_loader::catalog_map catalogs;
	catalogs["b"];
	xmc_loader loader;
	loader.handle_language("");
	loader.parse_string(ustring8("<?xml?><xmc version='1.0'>" + catalog("a", ".", "1") + catalog("b", ".", "2") +
	                             catalog("c", ".", "3") + "</xmc>"),
	                    "f");
	bool thrown = false;
	try {
		loader.combine_data(catalogs);
	} catch (char const *text) {
		thrown = true;
		EXPECT_STREQ(text, "unreferanced object");
	}
	EXPECT_TRUE(thrown);
	// What comes before it in order is merged.
	EXPECT_EQ(catalogs.size(), 2U);
	EXPECT_EQ(quor_test::xmc_text(*catalogs["a"]), " m(.)=1");
}

} // namespace
