// Files that include files, and how far that goes.

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include <quor/i18n/xmc_file_loader.hpp>

#include "support/temporary_directory.hpp"
#include "support/xmc_text.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::strings::ustring8;
using quor_test::temporary_directory;
using quor_test::working_directory;
using quor_test::xmc_loader;
using load_error = xmc_loader::load_error;

std::string const prefix = "xmc_file_loader::load_error - ";

std::string document(std::string const &content) {
	return "<?xml?><xmc version=\"1.1\">" + content + "</xmc>";
}

std::string include(std::string const &path) {
	return "<include file=\"" + path + "\"/>";
}

std::string catalog(std::string const &name, std::string const &text) {
	return "<catalog name=\"" + name + "\" lang=\".\"><msg name=\"m\">" + text + "</msg></catalog>";
}

std::string not_found(std::string const &name) {
	return prefix + "File \"" + name + "\" was not found on disk";
}

std::string file_line(std::string const &name) {
	return "\n in file: \"" + name + "\"";
}

TEST(xmc_include, include_is_found_beside_the_including_file) {
	temporary_directory directory;
	directory.write("a.xmc", document(include("s/b.xmc") + catalog("a", "1") + include("d.xmc")));
	directory.write("s/b.xmc", document(" x <!-- c -->" + include("c.xmc") + "\n\n" + catalog("b", "2")));
	directory.write("s/c.xmc", document(catalog("c", "3")));
	directory.write("d.xmc", document(catalog("d", "4")));
	xmc_loader loader;
	EXPECT_EQ(loader.parse(directory.path("a.xmc")).message(), prefix + "No Error");
	EXPECT_EQ(quor_test::xmc_text(loader), "a: m(.)=1 | b: m(.)=2 | c: m(.)=3 | d: m(.)=4");
}

TEST(xmc_include, base_is_cut_at_either_separator) {
	temporary_directory directory;
	directory.write("s/a.xmc", document(include("t\\b.xmc")));
	directory.write("s/t/b.xmc", document(include("../c.xmc")));
	directory.write("s/c.xmc", document(include("none.xmc")));
	std::string const root = directory.path();
	for (std::string const &file : {root + "\\s\\a.xmc", root + "/s/a.xmc", root + "/s\\a.xmc", root + "\\s/a.xmc"}) {
		SCOPED_TRACE(file);
		std::string const base = file.substr(0, file.size() - 5);
		load_error const error = xmc_loader().parse(ustring8(file));
		EXPECT_EQ(error.type(), 3);
		EXPECT_EQ(error.message(), not_found(base + "t\\../none.xmc") + file_line(base + "t\\../c.xmc") +
		                               file_line(base + "t\\b.xmc") + file_line(file));
	}
}

TEST(xmc_include, base_of_a_bare_name_is_the_working_directory) {
	temporary_directory directory;
	directory.write("a.xmc", document(include("b.xmc")));
	directory.write("b.xmc", document(catalog("b", "1") + include("c.xmc")));
	working_directory const inside(directory.root());
	load_error const error = xmc_loader().parse("a.xmc");
	EXPECT_EQ(error.message(), not_found("./c.xmc") + file_line("./b.xmc") + file_line("a.xmc"));
	// Before any file there is no base at all.
	load_error const text = xmc_loader().parse_string(ustring8(document(include("none.xmc"))), "f");
	EXPECT_EQ(text.message(), not_found("none.xmc") + file_line("f"));
	xmc_loader loader;
	EXPECT_EQ(loader.parse_string(ustring8(document(include("b.xmc"))), "f").message(),
	          not_found("./c.xmc") + file_line("b.xmc") + file_line("f"));
}

TEST(xmc_include, base_stays_after_a_file_for_a_text_that_follows) {
	temporary_directory directory;
	directory.write("s/a.xmc", document(""));
	xmc_loader loader;
	loader.parse(directory.path("s/a.xmc"));
	auto const expect_base = [&loader](ustring8 const &base) {
		EXPECT_EQ(loader.parse_string(ustring8(document(include("none"))), "f").message(),
		          not_found(base + "none") + file_line("f"));
	};
	expect_base(directory.path("s/"));
	// A file that isn't there leaves it, one that is there but faulty doesn't.
	EXPECT_EQ(loader.parse(directory.path("t/none.xmc")).type(), 3);
	expect_base(directory.path("s/"));
	directory.write("t/bad.xmc", "no xml");
	EXPECT_EQ(loader.parse(directory.path("t/bad.xmc")).type(), 4);
	expect_base(directory.path("t/"));
	xmc_loader copy(loader);
	EXPECT_EQ(copy.parse_string(ustring8(document(include("none"))), "f").message(),
	          not_found(directory.path("t/none")) + file_line("f"));
}

TEST(xmc_include, whole_paths_are_taken_as_they_stand) {
	temporary_directory directory;
	directory.write("s/a.xmc", document(""));
	xmc_loader loader;
	loader.parse(directory.path("s/a.xmc"));
	std::string const base = directory.path("s/");
	std::vector<std::pair<std::string, std::string>> const rows = {
	    {"/none/x", "/none/x"}, {"\\none\\x", "\\none\\x"}, {"/", "/"},        {"q:x", "q:x"},
	    {"q:", base + "q:"},    {":x", base + ":x"},        {"::x", "::x"},    {"qq:x", base + "qq:x"},
	    {"./x", base + "./x"},  {"..\\x", base + "..\\x"},  {":", base + ":"},
	};
	for (auto const &[path, expected] : rows) {
		SCOPED_TRACE(path);
		load_error const error = loader.parse_string(ustring8(document(include(path))), "f");
		if (path == "/") {
			EXPECT_EQ(error.message(), prefix + "Valid XML header not found" + file_line("/") + file_line("f"));
		} else {
			EXPECT_EQ(error.message(), not_found(expected) + file_line("f"));
		}
	}
}

TEST(xmc_include, include_faults) {
	temporary_directory directory;
	directory.write("a.xmc", document(catalog("a", "1")));
	directory.write("none.xmc", document(""));
	xmc_loader loader;
	loader.parse(directory.path("none.xmc"));
	struct row {
		std::string text;
		int type;
		std::string message;
	};
	std::string const none = directory.path("none.xmc");
	std::vector<row> const rows = {
	    {"<include/>", 3, "File \"\" was not found on disk"},
	    {"<include file=''/>", 3, "File \"\" was not found on disk"},
	    {"<include path='a.xmc'/>", 5, "Invalid attibute \"path\""},
	    {"<include file='a.xmc' lang='x'/>", 5, "Invalid attibute \"lang\""},
	    {"<include file='' lang='x'/>", 5, "Invalid attibute \"lang\""},
	    {"<include file='a.xmc'> </include>", 12, "Expected \"include\" end tag not found"},
	    {"<include file='a.xmc'>x</include>", 12, "Expected \"include\" end tag not found"},
	    {"<include file='a.xmc'><b/></include>", 12, "Expected \"include\" end tag not found"},
	    {"<include file='none.xmc'>x</include>", 1, "No catalog was loaded in file: \"" + none + "\""},
	    {"<include file='.'/>", 4, "Valid XML header not found" + file_line(directory.path("."))},
	};
	for (row const &expected : rows) {
		SCOPED_TRACE(expected.text);
		load_error const error = loader.parse_string(ustring8(document(expected.text)), "f");
		EXPECT_EQ(error.type(), expected.type);
		EXPECT_EQ(error.message(), prefix + expected.message + file_line("f"));
	}
	EXPECT_EQ(loader.parse_string(ustring8(document("<include file='a.xmc'><!-- c --></include>")), "f").type(), 0);
}

TEST(xmc_include, include_alone_counts_as_found) {
	temporary_directory directory;
	directory.write("a.xmc", document("<catalog name='a' lang='fr'/>"));
	directory.write("b.xmc", document(include("a.xmc")));
	xmc_loader loader;
	EXPECT_EQ(loader.parse(directory.path("b.xmc")).type(), 0);
	EXPECT_EQ(quor_test::xmc_text(loader), "");
}

TEST(xmc_include, faults_of_included_files_read_from_the_inside_out) {
	temporary_directory directory;
	directory.write("a.xmc", document(include("b.xmc")));
	directory.write("b.xmc", document("<catalog name='app' lang='.'><msg name='used'><b/></msg></catalog>"));
	load_error const error = xmc_loader().parse(directory.path("a.xmc"));
	EXPECT_EQ(error.type(), 6);
	EXPECT_EQ(error.message(), prefix +
	                               "Invalid element \"b\"\n in message element: \"used\""
	                               "\n in catalog element: \"app\"" +
	                               file_line(directory.path("b.xmc")) + file_line(directory.path("a.xmc")));
	directory.write("b.xmc", "<?xml?><a>");
	EXPECT_EQ(xmc_loader().parse(directory.path("a.xmc")).message(),
	          prefix + "Unexpected end of file during XML parsing" + file_line(directory.path("b.xmc")) +
	              file_line(directory.path("a.xmc")));
}

std::size_t count_lines(std::string const &text) {
	std::size_t count = 0;
	for (std::size_t at = text.find("\n in file: "); at != std::string::npos; at = text.find("\n in file: ", at + 1)) {
		++count;
	}
	return count;
}

TEST(xmc_include, cycle_ends_at_the_depth_limit) {
	temporary_directory directory;
	directory.write("a.xmc", document(catalog("a", "1") + include("b.xmc")));
	directory.write("b.xmc", document(catalog("b", "1") + include("a.xmc")));
	xmc_loader loader;
	load_error const error = loader.parse(directory.path("a.xmc"));
	EXPECT_EQ(error.type(), xmc_loader::load_unexpected);
	std::string expected = prefix + "Unexpected parse error happen!";
	for (unsigned int i = 0; i != xmc_loader::max_include_depth / 2; ++i) {
		expected += file_line(directory.path("a.xmc")) + file_line(directory.path("b.xmc"));
	}
	EXPECT_EQ(error.message(), expected + file_line(directory.path("a.xmc")));
	// The loader is as good as before.
	EXPECT_EQ(quor_test::xmc_text(loader), "a: m(.)=1 | b: m(.)=1");
	EXPECT_EQ(loader.parse(directory.path("a.xmc")).message(), error.message());
}

// Writes 0.xmc, which includes 1.xmc and so on, `depth` levels down.
void write_chain(temporary_directory const &directory, unsigned int depth) {
	for (unsigned int i = 0; i != depth; ++i) {
		directory.write(std::to_string(i) + ".xmc", document(include(std::to_string(i + 1) + ".xmc")));
	}
	directory.write(std::to_string(depth) + ".xmc", document(catalog("deep", "x")));
}

TEST(xmc_include, chain_of_64_loads_and_of_65_fails) {
	temporary_directory directory;
	EXPECT_EQ(xmc_loader::max_include_depth, 64U);
	for (unsigned int const depth : {63U, 64U}) {
		write_chain(directory, depth);
		xmc_loader loader;
		EXPECT_EQ(loader.parse(directory.path("0.xmc")).type(), 0) << depth;
		EXPECT_EQ(quor_test::xmc_text(loader), "deep: m(.)=x");
	}
	write_chain(directory, 65);
	xmc_loader loader;
	load_error const error = loader.parse(directory.path("0.xmc"));
	EXPECT_EQ(error.type(), 14);
	EXPECT_EQ(count_lines(error.message()), 65U);
	EXPECT_EQ(quor_test::xmc_text(loader), "");
}

TEST(xmc_include, path_that_grows_with_each_level_ends_at_the_depth_limit) {
	temporary_directory directory;
	directory.write("s/m.xmc", document(include("../s/m.xmc")));
	load_error const error = xmc_loader().parse(directory.path("s/m.xmc"));
	EXPECT_EQ(error.type(), 14);
	EXPECT_EQ(count_lines(error.message()), 65U);
}

TEST(xmc_include, fan_out_ends_at_the_file_limit) {
	temporary_directory directory;
	EXPECT_EQ(xmc_loader::max_files, 4096U);
	directory.write("leaf.xmc", document(catalog("leaf", "x")));
	std::string all;
	for (int i = 0; i != 4095; ++i) {
		all += include("leaf.xmc");
	}
	directory.write("a.xmc", document(all));
	xmc_loader loader;
	EXPECT_EQ(loader.parse(directory.path("a.xmc")).type(), 0);
	// The count begins anew with each call, for a text too.
	EXPECT_EQ(loader.parse(directory.path("a.xmc")).type(), 0);
	EXPECT_EQ(loader.parse_string(ustring8(document(all)), "f").type(), 0);
	directory.write("a.xmc", document(all + include("leaf.xmc")));
	load_error const error = loader.parse(directory.path("a.xmc"));
	EXPECT_EQ(error.type(), 14);
	EXPECT_EQ(error.message(), prefix + "Unexpected parse error happen!" + file_line(directory.path("a.xmc")));
}

TEST(xmc_include, fan_out_of_powers_of_two_ends) {
	temporary_directory directory;
	for (int i = 0; i != 40; ++i) {
		std::string const next = include(std::to_string(i + 1) + ".xmc");
		directory.write(std::to_string(i) + ".xmc", document(next + next));
	}
	directory.write("40.xmc", document("<catalog/>"));
	load_error const error = xmc_loader().parse(directory.path("0.xmc"));
	EXPECT_EQ(error.type(), 14);
	EXPECT_GE(count_lines(error.message()), 28U);
}

TEST(xmc_include, of_a_malformed_file_nothing_stays_and_nothing_is_included) {
	temporary_directory directory;
	directory.write("b.xmc", document(catalog("b", "2")));
	directory.write("a.xmc", document(catalog("a", "1") + include("b.xmc") + catalog("c", "3")) + "<x/>");
	directory.write("d.xmc", document(include("b.xmc") + include("a.xmc")));
	for (auto const &[file, expected] : {std::pair("a.xmc", ""), std::pair("d.xmc", "b: m(.)=2")}) {
		xmc_loader loader;
		load_error const error = loader.parse(directory.path(file));
		EXPECT_EQ(error.type(), xmc_loader::load_xml_error);
		EXPECT_EQ(quor_test::xmc_text(loader), expected);
	}
}

TEST(xmc_include, a_malformed_end_comes_before_any_other_fault) {
	temporary_directory directory;
	directory.write("a.xmc", document(catalog("a", "1") + include("none.xmc")) + "<x/>");
	directory.write("b.xmc", document(catalog("a", "1") + "<unknown/>") + "<x/>");
	for (std::string const file : {"a.xmc", "b.xmc"}) {
		EXPECT_EQ(xmc_loader().parse(directory.path(file)).type(), xmc_loader::load_xml_error);
	}
}

TEST(xmc_include, texts_around_an_include_keep_their_order) {
	temporary_directory directory;
	directory.write("b.xmc", document(catalog("c", "included")));
	directory.write("first.xmc", document(catalog("c", "own") + include("b.xmc")));
	directory.write("last.xmc", document(include("b.xmc") + catalog("c", "own")));
	xmc_loader first;
	EXPECT_EQ(first.parse(directory.path("first.xmc")).type(), xmc_loader::load_none);
	EXPECT_EQ(quor_test::xmc_text(first), "c: m(.)=own");
	xmc_loader last;
	EXPECT_EQ(last.parse(directory.path("last.xmc")).type(), xmc_loader::load_none);
	EXPECT_EQ(quor_test::xmc_text(last), "c: m(.)=included");
	// A further file adds to what is there, and what is there stays.
	EXPECT_EQ(last.parse(directory.path("first.xmc")).type(), xmc_loader::load_none);
	EXPECT_EQ(quor_test::xmc_text(last), "c: m(.)=included");
}

TEST(xmc_include, texts_in_front_of_a_fault_stay) {
	temporary_directory directory;
	directory.write("a.xmc", document(catalog("a", "1") + include("none.xmc") + catalog("b", "2")));
	xmc_loader loader;
	EXPECT_EQ(loader.parse(directory.path("a.xmc")).type(), xmc_loader::load_file_not_found);
	EXPECT_EQ(quor_test::xmc_text(loader), "a: m(.)=1");
}

} // namespace
