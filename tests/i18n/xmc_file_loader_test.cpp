#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include <quor/i18n/xmc_file_loader.hpp>

#include "support/temporary_directory.hpp"
#include "support/xmc_text.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor_test::temporary_directory;
using quor_test::working_directory;
using quor_test::xmc_loader;
using load_error = xmc_loader::load_error;

std::string const prefix = "xmc_file_loader::load_error - ";
std::string const header = "<?xml version=\"1.0\"?>";

std::string document(std::string const &content) {
	return header + "<xmc version=\"1.1\">" + content + "</xmc>";
}

std::string catalog(std::string const &name, std::string const &lang, std::string const &key, std::string const &text) {
	return "<catalog name=\"" + name + "\" lang=\"" + lang + "\"><msg name=\"" + key + "\">" + text +
	       "</msg></catalog>";
}

std::string file_line(std::string const &name) {
	return "\n in file: \"" + name + "\"";
}

// The weights of some ids after one request.
void expect_weights(std::string const &request, std::vector<std::pair<std::string, unsigned int>> const &weights) {
	SCOPED_TRACE("request " + request);
	xmc_loader loader;
	loader.handle_language(ustring8(request));
	for (auto const &[id, weight] : weights) {
		SCOPED_TRACE("id " + id);
		EXPECT_EQ(loader.get_locale_weight(ustring8(id)), weight);
		EXPECT_EQ(loader.is_lang_id_good(ustring8(id)), weight != 0);
	}
}

TEST(xmc_file_loader, get_locale_weight_is_the_place_in_the_list) {
	EXPECT_EQ(xmc_loader().get_locale_weight("."), 0U);
	EXPECT_EQ(xmc_loader().get_locale_weight("en"), 0U);
	expect_weights("", {{".", 1}, {"en", 2}, {"", 0}, {"_", 0}, {"-", 0}, {"EN", 0}, {"e", 0}, {"en_", 0}, {"..", 0}});
	expect_weights("de", {{".", 1}, {"en", 2}, {"de", 3}, {"d", 0}, {"de_AT", 0}, {"DE", 0}, {"", 0}});
	expect_weights("de_AT_x", {{"de", 3}, {"de_AT", 4}, {"de_AT_x", 5}, {"de_A", 0}, {"de_AT_", 0}, {"de_", 0}});
	expect_weights("de-AT.x", {{"de", 3}, {"de_AT", 4}, {"de.AT", 4}, {"de-AT", 4}, {"de-AT-x", 5}});
	expect_weights("en", {{"en", 2}, {"en_US", 0}});
	expect_weights("en_US", {{"en", 2}, {"en_US", 3}, {"en-US", 3}});
	expect_weights("en_US_x", {{"en", 2}, {"en_US", 3}, {"en_US_x", 4}});
	expect_weights("eng_US", {{"en", 2}, {"eng", 3}, {"eng_US", 4}});
	expect_weights("e", {{"e", 3}});
	expect_weights("de_en", {{"de", 3}, {"de_en", 4}});
}

TEST(xmc_file_loader, get_locale_weight_with_odd_separators) {
	expect_weights(".", {{".", 1}, {"_", 0}, {"", 0}});
	expect_weights("-", {{"-", 3}, {"_", 0}, {".", 1}, {"", 0}});
	expect_weights("_", {{"", 3}, {"_", 0}});
	expect_weights("_1", {{"", 3}, {"_1", 4}, {"-1", 4}, {".1", 4}});
	expect_weights("-1", {{"", 3}, {"_1", 4}});
	expect_weights("de_", {{"de", 3}, {"de_", 0}});
	expect_weights("de__", {{"de", 3}, {"de_", 4}, {"de__", 0}});
	expect_weights("de__x", {{"de", 3}, {"de_", 4}, {"de__x", 5}, {"de.-x", 5}});
	expect_weights("__", {{"", 3}, {"_", 4}, {"__", 0}, {"-", 0}, {".", 1}});
	expect_weights("..", {{"", 3}, {"_", 4}, {"..", 0}});
	expect_weights("en_", {{"en", 2}, {"en_", 0}});
}

// The list as it is told, with all beginnings written out.
std::vector<std::string> listed(std::vector<std::string> list, std::string id) {
	if (id.size() != 1) {
		for (char &c : id) {
			c = c == '.' || c == '-' ? '_' : c;
		}
	}
	list.insert(list.end(), {".", "en"});
	std::string beginning;
	std::size_t start = 0;
	for (bool first = true; start < id.size(); first = false) {
		std::size_t const stop = std::min(id.find('_', start), id.size());
		beginning.append(first ? "" : "_").append(id, start, stop - start);
		if (!first || beginning != "en") {
			list.push_back(beginning);
		}
		start = stop + 1;
	}
	return list;
}

TEST(xmc_file_loader, handle_language_random_ids_agree_with_the_written_out_list) {
	std::mt19937 random(5);
	auto const some_id = [&random] {
		std::string id;
		for (std::size_t i = random() % 7; i != 0; --i) {
			id += "_._-een"[random() % 7];
		}
		return id;
	};
	for (int round = 0; round != 2000; ++round) {
		xmc_loader loader;
		std::vector<std::string> list;
		for (std::size_t i = random() % 3 + 1; i != 0; --i) {
			std::string const id = some_id();
			loader.handle_language(ustring8(id));
			list = listed(list, id);
		}
		for (int i = 0; i != 10; ++i) {
			std::string const asked = i < 5 ? some_id() : list[random() % list.size()];
			std::string id = asked;
			if (id.size() != 1) {
				std::replace(id.begin(), id.end(), '.', '_');
				std::replace(id.begin(), id.end(), '-', '_');
			}
			auto const place = std::find(list.begin(), list.end(), id);
			auto const weight = place == list.end() ? 0 : place - list.begin() + 1;
			ASSERT_EQ(loader.get_locale_weight(ustring8(asked)), weight) << testing::PrintToString(list) << asked;
		}
	}
}

TEST(xmc_file_loader, handle_language_twice_keeps_the_first_places) {
	xmc_loader loader;
	loader.handle_language("de");
	loader.handle_language("fr_CA");
	loader.handle_language("de");
	EXPECT_EQ(loader.get_locale_weight("."), 1U);
	EXPECT_EQ(loader.get_locale_weight("de"), 3U);
	EXPECT_EQ(loader.get_locale_weight("fr"), 6U);
	EXPECT_EQ(loader.get_locale_weight("fr_CA"), 7U);
	loader.handle_language("it");
	EXPECT_EQ(loader.get_locale_weight("it"), 13U);
	loader.reset();
	EXPECT_EQ(loader.get_locale_weight("it"), 13U);
}

TEST(xmc_file_loader, parse_forms_set_language_and_filter) {
	temporary_directory directory;
	directory.write("a.xmc", document(catalog("a", ".", "m", "0") + catalog("a", "en", "m", "1") +
	                                  catalog("a", "de", "m", "2") + catalog("b", "de", "n", "3")));
	ustring8 const file = directory.path("a.xmc");
	{
		xmc_loader loader;
		EXPECT_FALSE(loader.is_cat_id_set());
		EXPECT_TRUE(loader.is_catalog_matched("x"));
		EXPECT_EQ(loader.parse(file).message(), prefix + "No Error");
		EXPECT_EQ(quor_test::xmc_text(loader), "a: m(en)=1");
	}
	{
		xmc_loader loader;
		EXPECT_EQ(loader.parse(file, "de").type(), xmc_loader::load_none);
		EXPECT_EQ(quor_test::xmc_text(loader), "a: m(de)=2 | b: n(de)=3");
	}
	{
		xmc_loader loader;
		EXPECT_EQ(loader.parse(file, "de_AT", "b").type(), 0);
		EXPECT_EQ(quor_test::xmc_text(loader), "b: n(de)=3");
		EXPECT_TRUE(loader.is_cat_id_set());
		EXPECT_TRUE(loader.is_catalog_matched("b"));
		EXPECT_FALSE(loader.is_catalog_matched("a"));
		EXPECT_FALSE(loader.is_catalog_matched("B"));
		EXPECT_FALSE(loader.is_catalog_matched(""));
		// The filter stays for the calls that follow.
		EXPECT_EQ(loader.parse(file).type(), 0);
		EXPECT_EQ(quor_test::xmc_text(loader), "b: n(de)=3");
		EXPECT_EQ(loader.parse(file, "de", "").type(), 0);
		EXPECT_EQ(quor_test::xmc_text(loader), "a: m(de)=2 | b: n(de)=3");
	}
	{
		// All catalogs filtered out is no fault.
		xmc_loader loader;
		EXPECT_EQ(loader.parse(file, "", "x").type(), 0);
		EXPECT_EQ(quor_test::xmc_text(loader), "");
	}
}

TEST(xmc_file_loader, parse_three_arguments_lists_the_base_languages_twice) {
	temporary_directory directory;
	directory.write("a.xmc", document(""));
	xmc_loader loader;
	EXPECT_EQ(loader.parse(directory.path("a.xmc"), "de", "c").type(), 1);
	loader.handle_language("fr");
	EXPECT_EQ(loader.get_locale_weight("de"), 3U);
	EXPECT_EQ(loader.get_locale_weight("fr"), 8U);
}

TEST(xmc_file_loader, parse_takes_all_text_classes_and_plain_literals) {
	temporary_directory directory;
	directory.write("a.xmc", document(catalog("a", "de", "m", "2") + catalog("b", "de", "n", "3")));
	working_directory const inside(directory.root());
	std::string const both = "a: m(de)=2 | b: n(de)=3";
	auto const expect = [](load_error const &error, xmc_loader &loader, std::string const &content) {
		EXPECT_EQ(error.message(), prefix + "No Error");
		EXPECT_EQ(quor_test::xmc_text(loader), content);
	};
	{
		xmc_loader l;
		expect(l.parse("a.xmc"), l, "");
		expect(l.parse("a.xmc", "de"), l, both);
	}
	{
		xmc_loader l;
		expect(l.parse("a.xmc", "de", "b"), l, "b: n(de)=3");
	}
	{
		xmc_loader l;
		expect(l.parse(std::string("a.xmc"), std::string("de")), l, both);
	}
	{
		xmc_loader l;
		expect(l.parse(ustring16(QUOR_W("a.xmc"))), l, "");
		expect(l.parse(ustring16(QUOR_W("a.xmc")), ustring16(QUOR_W("de"))), l, both);
	}
	{
		xmc_loader l;
		expect(l.parse(QUOR_W("a.xmc"), QUOR_W("de"), QUOR_W("b")), l, "b: n(de)=3");
	}
	{
		xmc_loader l;
		expect(l.parse(ustring32(QUOR_U32("a.xmc"))), l, "");
		expect(l.parse(ustring32(QUOR_U32("a.xmc")), ustring32(QUOR_U32("de"))), l, both);
	}
	{
		xmc_loader l;
		expect(l.parse(QUOR_U32("a.xmc"), QUOR_U32("de"), QUOR_U32("b")), l, "b: n(de)=3");
	}
}

TEST(xmc_file_loader, parse_malformed_wide_text_counts_as_minus_one) {
	ustring16 const lone(1, quor::types::wide_char(0xD800));
	ustring32 const surrogate(1, quor::types::utf32_char(0xD800));
	xmc_loader loader;
	EXPECT_EQ(loader.parse(lone, lone).message(), prefix + "File \"-1\" was not found on disk");
	EXPECT_EQ(loader.get_locale_weight(""), 3U);
	EXPECT_EQ(loader.get_locale_weight("-1"), 4U);
	EXPECT_EQ(xmc_loader().parse(surrogate).message(), prefix + "File \"-1\" was not found on disk");
}

TEST(xmc_file_loader, parse_missing_file_is_type_3_without_context) {
	temporary_directory directory;
	ustring8 const file = directory.path("none.xmc");
	xmc_loader loader;
	for (load_error const &error : {loader.parse(file), loader.parse(file, "de"), loader.parse_file(file)}) {
		EXPECT_EQ(error.type(), xmc_loader::load_file_not_found);
		EXPECT_EQ(error.message(), prefix + "File \"" + file + "\" was not found on disk");
	}
	EXPECT_EQ(loader.parse("").message(), prefix + "File \"\" was not found on disk");
}

TEST(xmc_file_loader, parse_file_reads_one_zero_byte_behind_the_file) {
	std::string const zero(1, '\0');
	struct row {
		std::string content;
		int type;
		std::string message;
	};
	std::vector<row> const rows = {
	    {"", 4, "Valid XML header not found"},
	    {"<?xml?>", 7, "Not XMC file, root element is not XMC but \"Value Not Defined\""},
	    {"<?xml?>\n", 7, "Not XMC file, root element is not XMC but \"Value Not Defined\""},
	    {"<?xml?><", 4, "Unexpected character \"" + zero + "\" found while parsing\n at line: \"0\""},
	    {"<?xml?><a></a", 4, "Unexpected character \"" + zero + "\" found while parsing\n at line: \"0\""},
	    {"<?xml?><a/", 4, "Unexpected character \"" + zero + "\" found while parsing\n at line: \"0\""},
	    {"<?xml?><a", 4, "Unexpected character \"" + zero + "\" found while parsing\n at line: \"0\""},
	    {"<?xml?><a>", 4, "Unexpected end of file during XML parsing"},
	    {"<?xml?><a b='1", 4, "Missing \" while parsing attribute \"b\"\n at line: \"0\""},
	    {"<?xml", 4, "No root element was found"},
	    {"<?xml?", 4, "No root element was found"},
	    {"<?xml>", 4, "Valid XML header not found"},
	};
	temporary_directory directory;
	ustring8 const file = directory.path("a.xmc");
	for (row const &expected : rows) {
		SCOPED_TRACE(testing::PrintToString(expected.content));
		directory.write("a.xmc", expected.content);
		load_error const error = xmc_loader().parse(file);
		EXPECT_EQ(error.type(), expected.type);
		EXPECT_EQ(error.message(), prefix + expected.message + file_line(file));
	}
	directory.write("a.xmc", document(""));
	EXPECT_EQ(xmc_loader().parse(file).message(), prefix + "No catalog was loaded in file: \"" + file + "\"");
}

TEST(xmc_file_loader, parse_directory_counts_as_empty) {
	temporary_directory directory;
	load_error const error = xmc_loader().parse(directory.path());
	EXPECT_EQ(error.type(), 4);
	EXPECT_EQ(error.message(), prefix + "Valid XML header not found" + file_line(directory.path()));
}

TEST(xmc_file_loader, parse_fault_keeps_what_was_read_before) {
	xmc_loader loader;
	loader.handle_language("");
	load_error const error =
	    loader.parse_string(ustring8(document(catalog("a", ".", "m", "x") +
	                                          "<catalog name='b' lang='.'><msg name='n'>y</msg><br/></catalog>")),
	                        "f");
	EXPECT_EQ(error.type(), 13);
	EXPECT_EQ(quor_test::xmc_text(loader), "a: m(.)=x | b: n(.)=y");
	// Calls add to each other; the first of equals stays.
	EXPECT_EQ(
	    loader.parse_string(ustring8(document(catalog("a", ".", "m", "z") + catalog("c", ".", "m", "z"))), "g").type(),
	    0);
	EXPECT_EQ(quor_test::xmc_text(loader), "a: m(.)=x | b: n(.)=y | c: m(.)=z");
}

TEST(xmc_file_loader, copy_and_assignment_take_all_that_was_read) {
	xmc_loader loader;
	loader.handle_language("de");
	loader.parse_string(ustring8(document(catalog("a", "de", "m", "x"))), "f");
	xmc_loader copy(loader);
	EXPECT_EQ(quor_test::xmc_text(copy), "a: m(de)=x");
	EXPECT_EQ(copy.get_locale_weight("de"), 3U);
	copy.parse_string(ustring8(document(catalog("b", "de", "m", "y"))), "f");
	EXPECT_EQ(quor_test::xmc_text(loader), "a: m(de)=x");
	xmc_loader assigned;
	assigned = copy;
	EXPECT_EQ(quor_test::xmc_text(assigned), "a: m(de)=x | b: m(de)=y");
	EXPECT_FALSE(assigned.is_cat_id_set());
	EXPECT_EQ(loader.parse("", "fr", "b").type(), 3);
	EXPECT_TRUE(xmc_loader(loader).is_cat_id_set());
	EXPECT_FALSE(xmc_loader(loader).is_catalog_matched("a"));
	assigned = loader;
	EXPECT_TRUE(assigned.is_catalog_matched("b"));
	EXPECT_FALSE(assigned.is_catalog_matched("a"));
	EXPECT_EQ(assigned.get_locale_weight("fr"), 6U);
}

} // namespace
