// Each kind of finding has a file that raises it, and the exact text.

#include <gtest/gtest.h>

#include <set>

#include "catalog/checker.hpp"
#include "run_command.hpp"
#include "support/debug_capture.hpp"
#include "support/temporary_directory.hpp"
#include "told_findings.hpp"

namespace {

using quor_cli::check_catalogs;
using quor_cli::check_result;
using quor_cli::finding;
using quor_cli::finding_kind;
using quor_test::file_of;
using quor_test::head;
using quor_test::temporary_directory;
using quor_test::told;

// A file with one message; its content is on line 4.
std::string message_of(std::string const &content) {
	return file_of("<msg name=\"m\">" + content + "</msg>");
}

struct row {
	char const *name;
	std::string text;
	std::vector<std::string> expected;
};

void run_rows(std::vector<row> const &rows) {
	quor_test::debug_capture const quiet;
	for (row const &each : rows) {
		SCOPED_TRACE(each.name);
		temporary_directory const directory;
		directory.write("a.xmc", each.text);
		EXPECT_EQ(each.expected, told(check_catalogs({directory.root().string()}, 0), directory.root().string()));
	}
}

TEST(check_findings, syntax_is_told_in_words_with_its_line) {
	std::string const in = " | catalog \"c\" (en)";
	run_rows({
	    {"header",
	     "<xmc version=\"1.0\"/>",
	     {"1 error syntax: the file must begin with the header <?xml version=\"1.0\"?>, without a blank or a line in "
	      "front of it"}},
	    {"line in front",
	     "\n<?xml?>\n<xmc/>",
	     {"1 error syntax: the file must begin with the header <?xml version=\"1.0\"?>, without a blank or a line in "
	      "front of it"}},
	    {"open header",
	     "<?xml version=\"1.0\"\n<xmc/>",
	     {"2 error syntax: the header is not closed: it must read <?xml version=\"1.0\"?>"}},
	    {"empty", "", {"1 error syntax: the file is empty; it must begin with the header <?xml version=\"1.0\"?>"}},
	    {"wide", std::string("\xFF\xFE<\0?\0x\0", 8), {"1 error syntax: the file is UTF-16; save it as UTF-8"}},
	    {"wide without mark", std::string("\0<\0?\0x", 6), {"1 error syntax: the file is UTF-16; save it as UTF-8"}},
	    {"mismatch",
	     file_of("<msg name=\"a\">x\n<msg name=\"b\">y</msg>"),
	     {"5 error element: <msg> can't stand in <msg>: </msg> is missing in front of it" + in + " > msg \"a\" > msg",
	      "6 error syntax: </catalog> stands where </msg> is expected: <msg>, opened on line 4, is still open" + in +
	          " > msg \"a\""}},
	    {"unclosed",
	     head + "<catalog name=\"c\" lang=\"en\">\n<msg name=\"a\">x",
	     {"4 error syntax: <msg>, opened on line 4, is never closed: </msg> is missing" + in + " > msg \"a\""}},
	    {"cut off in an end tag",
	     head + "<catalog name=\"c\" lang=\"en\">\n<msg name=\"a\">x</ms",
	     {"4 error syntax: the file ends in the middle of a tag" + in + " > msg \"a\""}},
	    {"comment that only looks closed",
	     file_of("<!-- a -->\n<!--->\n<!-- b"),
	     {"5 error syntax: the comment is never closed (\"-->\")" + in}},
	    {"comment", file_of("<!-- x"), {"4 error syntax: the comment is never closed (\"-->\")" + in}},
	    {"quote",
	     file_of("<msg name=\"a>x</msg>"),
	     {"4 error syntax: \"<\" inside a tag or an attribute's value: a quote or \">\" is missing before it; write "
	      "&lt; for the character itself" +
	      in + " > msg"}},
	    {"greater",
	     file_of(">"),
	     {"4 error syntax: \">\" without a tag to close; write &gt; for the character itself" + in}},
	    {"no quotes",
	     file_of("<msg name=a>x</msg>"),
	     {"4 error syntax: the value of an attribute must stand in straight quotes, \" or '" + in + " > msg"}},
	    {"equals",
	     file_of("<msg name>x</msg>"),
	     {"4 error syntax: the attribute \"name\" has no \"=\" and no value" + in + " > msg"}},
	    {"twice",
	     file_of("<msg name=\"a\" name=\"b\">x</msg>"),
	     {"4 error syntax: the attribute \"name\" stands twice in one tag" + in + " > msg \"a\""}},
	    {"entity",
	     message_of("&uuml;"),
	     {"4 error syntax: an unknown entity: there are &amp; &lt; &gt; &quot; &apos; &nbsp; and &#...;; write &amp; "
	      "for "
	      "\"&\" itself" +
	      in + " > msg \"m\""}},
	    {"ampersand",
	     message_of("a &am b"),
	     {"4 error syntax: a malformed entity: write &amp; for \"&\" itself, and end entities with \";\"" + in +
	      " > msg \"m\""}},
	    {"ampersand before a tag",
	     message_of("R&D"),
	     {"4 error syntax: an unknown entity: there are &amp; &lt; &gt; &quot; &apos; &nbsp; and &#...;; write &amp; "
	      "for \"&\" itself" +
	      in + " > msg \"m\""}},
	    {"less",
	     message_of("a < b"),
	     {"4 error syntax: \"<\" begins a tag, whose name can't begin with \" \"; write &lt; for the character itself" +
	      in + " > msg \"m\""}},
	    {"less before a character",
	     message_of("<\xC3\xA9"),
	     {"4 error syntax: \"<\" begins a tag, whose name can't begin with \"\xC3\xA9\"; write &lt; for the character "
	      "itself" +
	      in + " > msg \"m\""}},
	    {"cdata",
	     message_of("<![CDATA[x]]>"),
	     {"4 error syntax: \"<!\" begins comments only, as in <!-- text -->; there is no <!DOCTYPE> and no <![CDATA[" +
	      in + " > msg \"m\""}},
	    {"instruction", file_of("<?php x ?>"), {"4 error syntax: \"<?\" stands in the header only" + in}},
	    {"slash",
	     file_of("<msg name=\"a\"/ >"),
	     {"4 error syntax: \"/\" in a tag must be followed by \">\"" + in + " > msg \"a\""}},
	    {"end without a name",
	     message_of("x</ msg>"),
	     {"4 error syntax: \"</\" must be followed by a name" + in + " > msg \"m\""}},
	    {"dash in a name",
	     file_of("<msg my-name=\"a\">x</msg>"),
	     {"4 error syntax: the name \"my\" is cut by \"-\": names have letters, digits and \"_\"" + in + " > msg"}},
	    {"prefix",
	     "<?xml?>\n<xmc version=\"1.1\" xmlns:a=\"b\"><catalog name=\"c\" lang=\"en\"/></xmc>",
	     {"2 error syntax: the name \"xmlns\" is cut by \":\": names have letters, digits and \"_\""}},
	    {"name of an element",
	     file_of("<_a/>"),
	     {"4 error syntax: \"<\" begins a tag, whose name can't begin with \"_\"; write &lt; for the character itself" +
	      in}},
	    {"character in a tag",
	     file_of("<msg !>x</msg>"),
	     {"4 error syntax: the character \"!\" can't stand here: the names of elements and attributes begin with a "
	      "letter and go on with letters, digits and \"_\"" +
	      in + " > msg"}},
	    {"second root",
	     file_of("") + "<xmc/>",
	     {"7 error syntax: a second root element: everything must stand inside one <xmc>"}},
	});
}

TEST(check_findings, reading_goes_on_behind_every_fault) {
	run_rows({
	    {"three",
	     file_of("<msg name=a>x</msg>\n<msg name=\"b\">y &z; </msg>\n<msg name=\"c\"><b>y</b></msg>\n"
	             "<msg name=\"d\"><arg name=\"n\" type=\"date\"/></msg>"),
	     {"4 error syntax: the value of an attribute must stand in straight quotes, \" or ' | catalog \"c\" (en) > msg",
	      "5 error syntax: an unknown entity: there are &amp; &lt; &gt; &quot; &apos; &nbsp; and &#...;; write &amp; "
	      "for \"&\" itself | catalog \"c\" (en) > msg \"b\"",
	      "6 error element: <b> can't stand in <msg>; <msg> takes text, <arg> and <br/> | catalog \"c\" (en) > msg "
	      "\"c\" > b",
	      "7 warning type-reserved: the type \"date\" is reserved and always shows \"?invalid?\"; give the program's "
	      "own text as a string | catalog \"c\" (en) > msg \"d\" > arg \"n\""}},
	});
}

// The line of the first fault for each way of ending a line.
TEST(check_findings, lines_are_those_of_an_editor) {
	std::string const text =
	    file_of("<msg\n name=\"a\"\n foo=\"b\">x</msg>\n<!-- \n -->\n<msg name=\"b\">x\ny<b/></msg>\n"
	            "<msg\n name=c/>\n<msg name=\"d\" name=\"e\"/>");
	for (std::string const ending : {"\n", "\r\n", "\r"}) {
		std::string const ended = quor_test::replaced(text, "\n", ending);
		temporary_directory const directory;
		directory.write("a.xmc", ended);
		std::vector<std::size_t> lines;
		check_result const result = check_catalogs({directory.root().string()}, 0);
		for (auto const &[file, found] : result.findings.files()) {
			for (finding const &each : found.kept) {
				lines.push_back(each.where.line);
			}
		}
		EXPECT_EQ((std::vector<std::size_t>{6, 10, 12, 13}), lines) << ending.size();
	}
}

// The loader's own lines go on behind a fault as if it had been mended.
TEST(check_findings, lines_of_the_loader_go_on_behind_a_fault) {
	temporary_directory const directory;
	directory.write("a.xmc", file_of("<msg name=a>x</msg>\n\n<msg name=b>x</msg>\n<msg name=c>x</msg>"));
	std::vector<std::string> told;
	check_result const result = check_catalogs({directory.root().string()}, 0);
	for (finding const &each : result.findings.files().begin()->second.kept) {
		told.push_back(each.loader.substr(each.loader.find("line: "), 9));
	}
	EXPECT_EQ((std::vector<std::string>{"line: \"3\"", "line: \"5\"", "line: \"6\""}), told);
}

TEST(check_findings, a_fault_brings_no_false_ones_along) {
	std::string const in = " | catalog \"c\" (en)";
	std::string const quotes = "error syntax: the value of an attribute must stand in straight quotes, \" or '";
	run_rows({
	    {"the open catalog keeps its line",
	     head + "<catalog name=\"c\" lang=\"en\">\n<msg name=a>x</msg>\n<msg name=\"b\">y</msg>",
	     {"3 error syntax: <catalog>, opened on line 3, is never closed: </catalog> is missing" + in,
	      "4 " + quotes + in + " > msg"}},
	    {"what stands between two messages is read",
	     file_of("<msg name=a>x</msg>\n<group/>\n<msg name=\"b\">y</msg>"),
	     {"4 " + quotes + in + " > msg",
	      "5 error element: <group> can't stand in <catalog>; <catalog> takes <msg>" + in + " > group"}},
	    {"catalog in catalog",
	     file_of("<catalog name=\"d\" lang=\"de\"><msg name=\"m\">x</msg></catalog>\n<msg name=\"n\">x</msg>"),
	     {"4 error element: <catalog> can't stand in <catalog>; <catalog> takes <msg>" + in + " > catalog"}},
	    {"include in catalog",
	     file_of("<include file=\"gone.xmc\"/>\n<msg name=\"n\"><b/></msg>"),
	     {"4 error element: <include> can't stand in <catalog>; <catalog> takes <msg>" + in + " > include",
	      "4 error include-missing: the included file \"gone.xmc\" does not exist | include",
	      "5 error element: <b> can't stand in <msg>; <msg> takes text, <arg> and <br/>" + in + " > msg \"n\" > b"}},
	    {"message outside of catalogs",
	     head + "<msg name=m>x</msg>\n<catalog name=\"c\" lang=\"en\"/></xmc>",
	     {"3 error element: <msg> can't stand in <xmc>; <xmc> takes <catalog> and <include> | msg", "3 " + quotes}},
	});
}

TEST(check_findings, structure_is_told_in_words) {
	std::string const in = " | catalog \"c\" (en)";
	run_rows({
	    {"root", "<?xml?><html><body/></html>", {"1 error root: the root element must be <xmc>, not <html> | html"}},
	    {"version",
	     "<?xml?><xmc version=\"2.0\"><catalog name=\"c\" lang=\"en\"/></xmc>",
	     {"1 error version: version \"2.0\" is not known; there are \"1.0\" and \"1.1\""}},
	    {"no version",
	     "<?xml?><xmc><catalog name=\"c\" lang=\"en\"/></xmc>",
	     {"1 error attribute: the first attribute of <xmc> must be version"}},
	    {"attribute of xmc",
	     "<?xml?><xmc version=\"1.1\" lang=\"en\"> <catalog name=\"c\" lang=\"en\"/></xmc>",
	     {"1 error attribute: <xmc> takes no attribute \"lang\""}},
	    {"comment behind xmc",
	     "<?xml?>\n<xmc version=\"1.1\"><!-- x --><catalog name=\"c\" lang=\"en\"/></xmc>",
	     {"2 error content: a comment can't stand directly behind <xmc>; put a blank or a line in front of it"}},
	    {"element in xmc",
	     head + "<group/>\n<include/></xmc>",
	     {"3 error element: <group> can't stand in <xmc>; <xmc> takes <catalog> and <include> | group",
	      "4 error include-missing: <include> names no file"}},
	    {"element in catalog",
	     file_of("<message>x</message>"),
	     {"4 error element: <message> can't stand in <catalog>; <catalog> takes <msg>" + in + " > message"}},
	    {"attributes",
	     head + "<catalog name=\"c\" language=\"en\"><msg id=\"m\">x</msg></catalog><include href=\"x\"/></xmc>",
	     {"3 error attribute: <catalog> has no attribute \"language\"; it takes name and lang | catalog \"c\"",
	      "3 error attribute: <msg> has no attribute \"id\"; it takes name and meta | catalog \"c\" > msg",
	      "3 error attribute: <include> has no attribute \"href\"; it takes file"}},
	    {"br",
	     message_of("a<br x=\"1\"/>b"),
	     {"4 error attribute: <br/> takes no attributes and no content" + in + " > msg \"m\""}},
	    {"br content",
	     message_of("a<br>b</br>"),
	     {"4 error content: <br/> takes no attributes and no content" + in + " > msg \"m\""}},
	    {"word",
	     message_of("<arg name=\"a\"/>msg"),
	     {"4 error ending-word: a piece of text that is exactly \"msg\" ends its message; break the word with a "
	      "comment, as in ms<!-- -->g" +
	      in + " > msg \"m\""}},
	    {"word in argument",
	     message_of("<arg name=\"a\">arg</arg>"),
	     {"4 error ending-word: a piece of text that is exactly \"arg\" ends its argument; break the word with a "
	      "comment, as in ar<!-- -->g" +
	      in + " > msg \"m\""}},
	    {"element in argument",
	     message_of("<arg name=\"a\"><b/></arg>"),
	     {"4 error element: <b> can't stand in an argument, which takes no elements" + in + " > msg \"m\" > b"}},
	    {"no catalog", head + "</xmc>", {"0 error no-catalog: the file has neither a <catalog> nor an <include>"}},
	    {"include content",
	     head + "<include file=\"a.txt\">x</include></xmc>",
	     {"3 error content: <include/> takes no content",
	      "3 error include-missing: the included file \"a.txt\" does not exist | include"}},
	});
}

TEST(check_findings, what_loads_and_is_wrong_is_a_warning) {
	std::string const in = " | catalog \"c\" (en) > msg \"m\" > arg \"n\"";
	std::string const shows = ", so it always shows \"?invalid?\"";
	run_rows({
	    {"no lang",
	     head + "<catalog name=\"c\"><msg name=\"m\">x</msg></catalog></xmc>",
	     {"3 warning catalog-without-lang: the catalog has no lang, so it is never loaded; lang=\".\" is for texts of "
	      "every language | catalog \"c\""}},
	    {"no name",
	     head + "<catalog lang=\"en\"><msg name=\"m\">x</msg></catalog></xmc>",
	     {"3 warning catalog-without-name: the catalog has no name, so nobody can ask for its messages | catalog "
	      "(en)"}},
	    {"unreachable",
	     head + "<catalog name=\"c\" lang=\"de_\"/></xmc>",
	     {"3 warning language-unreachable: a request for the language \"de_\" does not find this catalog | "
	      "catalog \"c\" (de_)"}},
	    {"spelling",
	     head + "<catalog name=\"c\" lang=\"de-AT\"/></xmc>",
	     {"3 warning language-spelling: write the language as \"de_AT\": asked whether it is loaded, the program is "
	      "told that \"de-AT\" is not | catalog \"c\" (de-AT)"}},
	    {"case",
	     head + "<catalog name=\"c\" lang=\"de\"/>\n<catalog name=\"d\" lang=\"de\"/>\n<catalog name=\"c\" "
	            "lang=\"DE\"/></xmc>",
	     {"5 warning language-spelling: the language \"DE\" is another one than \"de\" elsewhere: upper and lower case "
	      "count | catalog \"c\" (DE)"}},
	    {"message without name",
	     file_of("<msg>x</msg>"),
	     {"4 warning message-without-name: the message has no name, so nobody can ask for it | catalog \"c\" (en) > "
	      "msg"}},
	    {"duplicate",
	     file_of("<msg name=\"m\">x</msg>\n<msg name=\"m\">y</msg>"),
	     {"5 warning duplicate-message: the message stands in this language already (line 4), and only the first text "
	      "is used | catalog \"c\" (en) > msg \"m\""}},
	    {"no UTF-8",
	     message_of("a\nb caf\xE9"),
	     {"5 warning encoding: the message is not UTF-8: the byte 0xE9 begins no character; save the file as UTF-8, "
	      "and write characters above &#127; themselves | catalog \"c\" (en) > msg \"m\""}},
	    {"number of a character",
	     message_of("&#233;"),
	     {"4 warning encoding: the message is not UTF-8: the byte 0xE9 begins no character; save the file as UTF-8, "
	      "and write characters above &#127; themselves | catalog \"c\" (en) > msg \"m\""}},
	    {"control character",
	     message_of("<arg name=\"n\" meta=\"&#1;\"/>"),
	     {"4 warning encoding: the message holds the control character 0x01, which is no text | catalog \"c\" (en) > "
	      "msg \"m\"",
	      "4 warning attribute-unused: the attribute \"meta\" has no effect, as the argument is text" + in}},
	    {"UTF-8", message_of("caf\xC3\xA9 \xE2\x80\x8F\t&#195;&#169; <!-- \xFF -->"), {}},
	    {"argument without name",
	     message_of("<arg type=\"int\"/>"),
	     {"4 warning argument-without-name: the argument has no name, so no value can reach it | catalog \"c\" (en) > "
	      "msg \"m\" > arg"}},
	    {"type unknown",
	     message_of("<arg name=\"n\" type=\"integer\"/>"),
	     {"4 warning type-unknown: the type \"integer\" is not known, so the value shows as text; write string, or one "
	      "of int, double, duration, memory, memory_unit, metric, metric_unit" +
	      in}},
	    {"type number",
	     message_of("<arg name=\"n\" type=\"number\"/>"),
	     {"4 warning type-reserved: the type \"number\" is reserved and always shows \"?invalid?\"; use int or double" +
	      in}},
	    {"lost",
	     message_of("<arg fieldsize=\"8\" name=\"n\" type=\"double\"/>"),
	     {"4 warning attribute-lost: the attribute \"fieldsize\" is lost, as it stands in front of name; write name "
	      "first" +
	      in}},
	    {"unused",
	     message_of("<arg name=\"n\" base=\"hex\"/>"),
	     {"4 warning attribute-unused: the attribute \"base\" has no effect, as the argument is text" + in}},
	    {"unknown",
	     message_of("<arg name=\"n\" type=\"int\" precision=\"2\"/>"),
	     {"4 warning attribute-unknown: type int has no attribute \"precision\"" + shows + in}},
	    {"value",
	     message_of("<arg name=\"n\" type=\"int\" base=\"hexadecimal\"/>"),
	     {"4 warning attribute-value: \"hexadecimal\" is no value of the attribute \"base\"" + shows + in}},
	    {"unit",
	     message_of("<arg name=\"n\" type=\"mem_unit\" target_unit=\"mb\"/>"),
	     {"4 warning attribute-value: \"mb\" is no value of the attribute \"target_unit\"" + shows + in}},
	    {"short form",
	     message_of("<arg name=\"n\" type=\"duration\" short_form=\"yes\"/>"),
	     {"4 warning attribute-value: \"yes\" is no value of the attribute \"short_form\"" + shows + in}},
	    {"empty",
	     message_of("<arg name=\"n\" type=\"int\" base=\"\"/>"),
	     {"4 warning attribute-empty: the attribute \"base\" is empty" + shows + in}},
	    {"too short",
	     message_of("<arg name=\"n\" type=\"int\" base=\"hex\" fieldsize=\"2\"/>"),
	     {"4 warning never-renders: these attributes together show \"?invalid?\" for every value" + in}},
	    {"abbreviated is fine", message_of("<arg name=\"n\" type=\"int\" b=\"h\" f=\"8\"/>"), {}},
	});
}

TEST(check_findings, arguments_are_compared_between_languages) {
	std::string const in = " | catalog \"c\" (de) > msg \"m\" > arg ";
	auto const both = [](std::string const &english, std::string const &german) {
		return head + "<catalog name=\"c\" lang=\"en\"><msg name=\"m\">" + english +
		       "</msg></catalog>\n<catalog name=\"c\" lang=\"de\"><msg name=\"m\">" + german + "</msg></catalog></xmc>";
	};
	run_rows({
	    {"missing",
	     both("<arg name=\"a\"/>", "x"),
	     {"4 warning arguments-differ: the argument \"a\" is missing; the text for \"en\" has it" + in + "\"a\""}},
	    {"extra",
	     both("x", "<arg name=\"a\"/>"),
	     {"4 warning arguments-differ: the text for \"en\" has no argument \"a\"" + in + "\"a\""}},
	    {"type",
	     both("<arg name=\"a\" type=\"int\"/>", "<arg name=\"a\" type=\"double\"/>"),
	     {"4 warning arguments-differ: the argument \"a\" is of type double here and of type int in the text for "
	      "\"en\"" +
	      in + "\"a\""}},
	    {"format", both("<arg name=\"a\" type=\"int\"/>", "<arg name=\"a\" type=\"int\" base=\"hex\"/>"), {}},
	    {"unit left out",
	     both("<arg name=\"a\" type=\"mem\"/> <arg name=\"a\" type=\"mem_unit\"/>", "<arg name=\"a\" type=\"mem\"/>"),
	     {}},
	});
}

TEST(check_findings, includes_are_followed) {
	temporary_directory const directory;
	auto const including = [](std::string const &file) { return head + "<include file=\"" + file + "\"/>\n</xmc>\n"; };
	directory.write("missing.xmc", including("gone.xmc"));
	directory.write("self.xmc", including("self.xmc"));
	directory.write("one.xmc", including("parts/two.xmc"));
	directory.write("parts/two.xmc", including("../one.xmc"));
	directory.write("folder.xmc", including("parts"));
	auto const check = [&directory](std::string const &name) {
		return told(check_catalogs({(directory.root() / name).string()}, 0), directory.root().string());
	};
	using lines = std::vector<std::string>;
	EXPECT_EQ(lines{"3 error include-missing: the included file \"gone.xmc\" does not exist | include"},
	          check("missing.xmc"));
	EXPECT_EQ(lines{"3 error include-cycle: the file includes itself | include"}, check("self.xmc"));
	EXPECT_EQ(lines{"3 error include-cycle: \"one.xmc\" includes this file in turn, so loading never ends | include"},
	          check("one.xmc"));
	EXPECT_EQ(lines{"3 error include-unreadable: the included file \"parts\" can't be read | include"},
	          check("folder.xmc"));
}

TEST(check_findings, too_many_includes_are_told) {
	temporary_directory const directory;
	auto const name = [](int number) { return std::string("f").append(std::to_string(number)).append(".xmc"); };
	for (int i = 0; i != 66; ++i) {
		directory.write(name(i), head + "<include file=\"" + name(i + 1) + "\"/>\n</xmc>");
	}
	directory.write("f66.xmc", file_of(""));
	EXPECT_EQ(
	    std::vector<std::string>{
	        "0 error loader: the files include each other more than 64 deep, or more than 4096 times in all"},
	    told(check_catalogs({(directory.root() / "f0.xmc").string()}, 0), directory.root().string()));
}

TEST(check_findings, every_kind_has_a_word_of_its_own) {
	std::set<std::string> words;
	for (int kind = 0; kind <= static_cast<int>(finding_kind::never_renders); ++kind) {
		words.emplace(kind_name(static_cast<finding_kind>(kind)));
	}
	EXPECT_EQ(static_cast<std::size_t>(finding_kind::never_renders) + 1, words.size());
}

} // namespace
