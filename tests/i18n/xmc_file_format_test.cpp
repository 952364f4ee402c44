// What the loader makes of texts: their catalogs, or the fault and its context lines.

#include <gtest/gtest.h>

#include <quor/i18n/xmc_file_loader.hpp>

#include "support/xmc_text.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::strings::ustring8;
using quor_test::xmc_loader;
using load_error = xmc_loader::load_error;

std::string const prefix = "xmc_file_loader::load_error - ";
std::string const header = "<?xml version=\"1.0\"?>";

std::string document(std::string const &content) {
	return header + "<xmc version=\"1.1\">" + content + "</xmc>";
}

std::string catalog(std::string const &content) {
	return document("<catalog name=\"c\" lang=\".\">" + content + "</catalog>");
}

std::string message(std::string const &content) {
	return catalog("<msg name=\"m\">" + content + "</msg>");
}

struct fault_row {
	std::string text;
	int type;
	std::string message;
};

// Rows of texts with their faults; `around` goes behind each expected text.
void expect_faults(std::vector<fault_row> const &rows, std::string (*frame)(std::string const &),
                   std::string const &around) {
	for (fault_row const &row : rows) {
		SCOPED_TRACE(testing::PrintToString(row.text));
		xmc_loader loader;
		loader.handle_language("de_AT");
		load_error const error = loader.parse_string(ustring8(frame(row.text)), "f");
		EXPECT_EQ(error.type(), row.type);
		EXPECT_EQ(error.message(), std::string(prefix).append(row.message).append(around));
	}
}

struct content_row {
	std::string text;
	std::string content;
};

void expect_contents(std::vector<content_row> const &rows, std::string (*frame)(std::string const &)) {
	for (content_row const &row : rows) {
		SCOPED_TRACE(testing::PrintToString(row.text));
		xmc_loader loader;
		loader.handle_language("de_AT");
		load_error const error = loader.parse_string(ustring8(frame(row.text)), "f");
		EXPECT_EQ(error.type(), 0);
		EXPECT_EQ(error.message(), prefix + "No Error");
		EXPECT_EQ(quor_test::xmc_text(loader), row.content);
	}
}

std::string whole(std::string const &text) {
	return text;
}

TEST(xmc_file_format, xml_faults_win_over_everything) {
	expect_faults(
	    {
	        {"", 4, "Valid XML header not found"},
	        {"<xmc version=\"1.1\"/>", 4, "Valid XML header not found"},
	        {header, 4, "No root element was found"},
	        {header + "<xmc>", 4, "Unexpected end of file during XML parsing"},
	        {header + "<xmc></xmd>", 4, "Mismatched end element \"xmd\" was found"},
	        {header + "<abc/>\n\n<", 4, "Unexpected end of file during XML parsing"},
	        {header + "<abc/>\n\n<1", 4, "Data found after root element\n at line: \"2\""},
	        {document("<bad/>") + "\n\n>", 4, "Unexpected character \">\" found while parsing\n at line: \"2\""},
	        {document("<catalog lang=en/>"), 4, "Missing \" while parsing attribute \"\"\n at line: \"0\""},
	        {document("&what;"), 4, "Unknown enity being parsed\n at line: \"0\""},
	        {document("<a b/>"), 4, "Missing = sign for attribute \"b\"\n at line: \"0\""},
	        {document("<a b='' b=''/>"), 4, "attribute \"b\" is being redefined\n at line: \"0\""},
	        {document("<\xE9/>"), 4, "Unexpected character \"\xE9\" found while parsing\n at line: \"0\""},
	    },
	    whole, "\n in file: \"f\"");
}

TEST(xmc_file_format, root_and_version_faults) {
	expect_faults(
	    {
	        {"<abc/>", 7, "Not XMC file, root element is not XMC but \"abc\""},
	        {"<XMC version='1.0'/>", 7, "Not XMC file, root element is not XMC but \"XMC\""},
	        {"text", 7, "Not XMC file, root element is not XMC but \"Value Not Defined\""},
	        {"<!-- c -->", 7, "Not XMC file, root element is not XMC but \"Value Not Defined\""},
	        {"</abc>", 7, "Not XMC file, root element is not XMC but \"abc\""},
	        {"<xmc/>", 5, "Invalid attibute \"\""},
	        {"<xmc></xmc>", 5, "Invalid attibute \"\""},
	        {"<xmc><!-- c --></xmc>", 5, "Invalid attibute \" c \""},
	        {"<xmc lang='x' version='1.0'/>", 5, "Invalid attibute \"lang\""},
	        {"<xmc Version='1.0'/>", 5, "Invalid attibute \"Version\""},
	        {"<xmc version='2.0'/>", 8, "XMC version \"2.0\" is not supported"},
	        {"<xmc version=''/>", 8, "XMC version \"\" is not supported"},
	        {"<xmc version='1.10'/>", 8, "XMC version \"1.10\" is not supported"},
	        {"<xmc version=' 1.0'/>", 8, "XMC version \" 1.0\" is not supported"},
	        {"<xmc version='1.0' a='b'/>", 6, "Invalid element \"b\""},
	        {"<xmc version=\"1.1\"><!-- c --></xmc>", 6, "Invalid element \"\""},
	        {"<xmc version=\"1.1\"><!-- c --><catalog/></xmc>", 6, "Invalid element \"\""},
	        {"<xmc version='1.1'><msg/></xmc>", 6, "Invalid element \"msg\""},
	        {"<xmc version='1.1'><Catalog/></xmc>", 6, "Invalid element \"Catalog\""},
	        {"<xmc version='1.1'><catalog/><xmc/></xmc>", 6, "Invalid element \"xmc\""},
	        {"<xmc version='1.1'><catalog></catalog a='b'></xmc>", 6, "Invalid element \"a\""},
	        {"<xmc version='1.0'></xmc/>", 4, "Mismatched end element \"\" was found"},
	    },
	    [](std::string const &text) { return header + text; }, "\n in file: \"f\"");
	// What is no fault of the text has no context line.
	expect_faults(
	    {
	        {"<xmc version='1.1'/>", 1, "No catalog was loaded in file: \"f\""},
	        {"<xmc version='1.0'></xmc>", 1, "No catalog was loaded in file: \"f\""},
	        {" text <!-- c --><xmc version='1.0'> text <!-- c --></xmc> text", 1,
	         "No catalog was loaded in file: \"f\""},
	        {"<xmc version='1.1'></xmc b='1'>", 1, "No catalog was loaded in file: \"f\""},
	    },
	    [](std::string const &text) { return header + text; }, "");
}

TEST(xmc_file_format, catalog_faults_carry_the_name_read_so_far) {
	expect_faults(
	    {
	        {"<catalog x='1'/>", 5, "Invalid attibute \"x\"\n in catalog element: \"\""},
	        {"<catalog name='a' x='1'/>", 5, "Invalid attibute \"x\"\n in catalog element: \"a\""},
	        {"<catalog x='1' name='a'/>", 5, "Invalid attibute \"x\"\n in catalog element: \"\""},
	        {"<catalog Name='a'/>", 5, "Invalid attibute \"Name\"\n in catalog element: \"\""},
	        {"<catalog name='a' lang='.'><br/></catalog>", 13,
	         "Expected catalog end tag not found for catalog \"a\"\n in catalog element: \"a\""},
	        {"<catalog name='a' lang='.'> t <!-- c --><catalog/></catalog>", 13,
	         "Expected catalog end tag not found for catalog \"a\"\n in catalog element: \"a\""},
	        {"<catalog lang='.'><include file='x'/></catalog>", 13,
	         "Expected catalog end tag not found for catalog \"\"\n in catalog element: \"\""},
	        {"<catalog name='a' lang='.'><msg name='m'></msg b='1'></catalog>", 13,
	         "Expected catalog end tag not found for catalog \"a\"\n in catalog element: \"a\""},
	        // Inside a skipped catalog only its end is looked for.
	        {"<catalog><catalog></catalog></catalog>", 6, "Invalid element \"catalog\""},
	    },
	    document, "\n in file: \"f\"");
}

TEST(xmc_file_format, message_faults_carry_message_and_catalog) {
	std::string const around = "\n in message element: \"m\"\n in catalog element: \"c\"\n in file: \"f\"";
	expect_faults(
	    {
	        {"<b/>", 6, "Invalid element \"b\""},
	        {"x<Arg/>", 6, "Invalid element \"Arg\""},
	        {"<br>x</br>", 9, "Expected BR end tag not found"},
	        {"<br> </br>", 9, "Expected BR end tag not found"},
	        {"<br><br/></br>", 9, "Expected BR end tag not found"},
	        {"<br a='1'/>", 5, "Invalid attibute \"a\""},
	        {"<br><!-- c --></br>", 5, "Invalid attibute \" c \""},
	    },
	    message, around);
	expect_faults(
	    {
	        {"<msg x='1'/>", 5, "Invalid attibute \"x\"\n in message element: \"\""},
	        {"<msg name='n' x='1'/>", 5, "Invalid attibute \"x\"\n in message element: \"n\""},
	        {"<msg name='n'><b/></msg>", 6, "Invalid element \"b\"\n in message element: \"n\""},
	    },
	    catalog, "\n in catalog element: \"c\"\n in file: \"f\"");
}

TEST(xmc_file_format, words_that_end_a_message_or_an_argument_early_are_faults_later) {
	std::string const no_end = "Expected catalog end tag not found for catalog \"c\"";
	expect_faults(
	    {
	        {"msg", 13, no_end},
	        {"x<!--msg-->", 13, no_end},
	        {"<msg/>", 13, no_end},
	        {"a<arg/>msg", 13, no_end},
	        {"<arg><b/></arg>", 13, no_end},
	        {"<arg>arg</arg>", 13, no_end},
	        {"<arg>argument</arg>", 13, no_end},
	        {"<arg><arg/></arg>", 13, no_end},
	        {"<arg> <!--arg--></arg>", 13, no_end},
	    },
	    message, "\n in catalog element: \"c\"\n in file: \"f\"");
}

TEST(xmc_file_format, catalogs_are_kept_by_language) {
	std::string const content = "<msg name='m'>x</msg></catalog>";
	expect_contents(
	    {
	        {"<catalog name='a' lang='.'>" + content, "a: m(.)=x"},
	        {"<catalog lang='.' name='a'>" + content, "a: m(.)=x"},
	        {"<catalog name='a' lang='en'>" + content, "a: m(en)=x"},
	        {"<catalog name='a' lang='de'>" + content, "a: m(de)=x"},
	        {"<catalog name='a' lang='de_AT'>" + content, "a: m(de_AT)=x"},
	        {"<catalog name='a' lang='de-AT'>" + content, "a: m(de-AT)=x"},
	        {"<catalog name='a' lang='de.AT'>" + content, "a: m(de.AT)=x"},
	        {"<catalog name='a' lang='DE'>" + content, ""},
	        {"<catalog name='a' lang='fr'>" + content, ""},
	        {"<catalog name='a' lang=''>" + content, ""},
	        {"<catalog name='a'>" + content, ""},
	        {"<catalog name='a' lang='_'>" + content, ""},
	        {"<catalog lang='.'>" + content, ": m(.)=x"},
	        {"<catalog name='a' lang='.'/>", "a:"},
	        {"<catalog name='a' lang='.'> t <!--c--> </catalog>", "a:"},
	        {"<catalog name='a' lang='.'><!--c--></catalog>", "a:"},
	        {"<catalog name='a' lang='fr'><b>&amp;<msg x='1'/></b></catalog>", ""},
	        {"<catalog name='b' lang='.'/><catalog name='a' lang='.'/>", "a: | b:"},
	    },
	    document);
}

TEST(xmc_file_format, heavier_language_wins_and_the_first_of_equals_stays) {
	auto const one = [](std::string const &lang, std::string const &text) {
		return "<catalog name='a' lang='" + lang + "'><msg name='m'>" + text + "</msg></catalog>";
	};
	expect_contents(
	    {
	        {one(".", "1") + one("en", "2") + one("de", "3") + one("de_AT", "4"), "a: m(de_AT)=4"},
	        {one("de_AT", "4") + one("de", "3") + one("en", "2") + one(".", "1"), "a: m(de_AT)=4"},
	        {one("de", "3") + one("de", "5"), "a: m(de)=3"},
	        {one("de-AT", "3") + one("de_AT", "5"), "a: m(de-AT)=3"},
	        {one("en", "2") + one("fr", "9") + one(".", "1"), "a: m(en)=2"},
	        {one("de", "3") + "<catalog name='a' lang='.'><msg name='n'>x</msg></catalog>", "a: m(de)=3; n(.)=x"},
	        {"<catalog name='a' lang='.'><msg name='m'>1</msg><msg name='m'>2</msg></catalog>", "a: m(.)=1"},
	    },
	    document);
}

TEST(xmc_file_format, message_attributes) {
	expect_contents(
	    {
	        {"<msg name='m' meta='why'>x</msg>", "c: m(.)=x meta why"},
	        {"<msg meta='why' name='m'/>", "c: m(.)= meta why"},
	        {"<msg>x</msg>", "c: (.)=x"},
	        {"<msg name='m'/>", "c: m(.)="},
	        {"<msg name='b'/><msg name='B'/><msg name='a'/>", "c: B(.)=; a(.)=; b(.)="},
	        {"<msg name='a&amp;b'>x</msg>", "c: a&b(.)=x"},
	        {"<msg name='m'><!-- c -->x</msg>", "c: m(.)=x"},
	        {"<msg><!--a--><!--b--></msg>", "c: (.)="},
	        {"<!--a--> t <msg name='m'>x</msg> t <!--a--><msg name='n'>y</msg>", "c: m(.)=x; n(.)=y"},
	    },
	    catalog);
}

TEST(xmc_file_format, message_white_space) {
	expect_contents(
	    {
	        {"", "c: m(.)="},
	        {"x", "c: m(.)=x"},
	        {" x", "c: m(.)=x"},
	        {"\n\t x", "c: m(.)=x"},
	        {"x ", "c: m(.)=x "},
	        {"x\n", "c: m(.)=x\n"},
	        {"x  ", "c: m(.)=x "},
	        {"x\n\n", "c: m(.)=x "},
	        {"x \n\t y", "c: m(.)=x y"},
	        {"x\ny", "c: m(.)=x\ny"},
	        {"  x  y  ", "c: m(.)=x y "},
	        {" ", "c: m(.)="},
	        {"x <!--c--> y", "c: m(.)=x y"},
	        {"x<!--c--> y", "c: m(.)=x y"},
	        {"x <!--c-->y", "c: m(.)=x y"},
	        {"x&nbsp;  y", "c: m(.)=x y"},
	        {"&nbsp;x", "c: m(.)= x"},
	        {"x&#32;&#32;y", "c: m(.)=x  y"},
	        {" <!--c--> <!--c-->x", "c: m(.)=x"},
	    },
	    message);
}

TEST(xmc_file_format, message_breaks) {
	expect_contents(
	    {
	        {"<br/>", "c: m(.)=\n"},
	        {"a<br/>b", "c: m(.)=a\nb"},
	        {"a<br></br>b", "c: m(.)=a\nb"},
	        {"a <br/> b", "c: m(.)=a \n b"},
	        {"a<br/>  b", "c: m(.)=a\n b"},
	        {" <br/>b", "c: m(.)=\nb"},
	        {"<br/><br/>", "c: m(.)=\n\n"},
	        {"<arg/><br/> <arg/>", "c: m(.)={:1}\n {:1}"},
	    },
	    message);
}

TEST(xmc_file_format, message_arguments) {
	expect_contents(
	    {
	        {"<arg name='a'/>", "c: m(.)={a:1}"},
	        {"<argument name='a'/>", "c: m(.)={a:1}"},
	        {"<arg/>", "c: m(.)={:1}"},
	        {"x<arg name='a'/>y", "c: m(.)=x{a:1}y"},
	        {"<arg name='a'/><arg name='b'/>", "c: m(.)={a:1}{b:1}"},
	        {"<arg name='a'/> <arg name='b'/>", "c: m(.)={a:1} {b:1}"},
	        {"<arg name='a'/> \n <arg name='b'/>", "c: m(.)={a:1} {b:1}"},
	        {"<arg name='a'/> ", "c: m(.)={a:1} "},
	        {"<arg name='a'/> <!--c--> x", "c: m(.)={a:1} x"},
	        {"<arg name='a'/><!--c--> <arg name='b'/>", "c: m(.)={a:1} {b:1}"},
	        {" <arg name='a'/> x", "c: m(.)={a:1} x"},
	        {"<arg name='a'/>  x", "c: m(.)={a:1} x"},
	        {"x <arg name='a'/>", "c: m(.)=x {a:1}"},
	        {"<arg name='a' fieldsize='8' pad='0'/>", "c: m(.)={a,fieldsize,8,pad,0:1}"},
	        {"<arg fieldsize='8' name='a'/>", "c: m(.)={a:1}"},
	        {"<arg fieldsize='8' name='a' base='hex'/>", "c: m(.)={a,base,hex:1}"},
	        {"<arg fieldsize='8'/>", "c: m(.)={,fieldsize,8:1}"},
	        {"<arg name='a' base=''/>", "c: m(.)={a,base,:1}"},
	        {"<arg type='int' name='a'/>", "c: m(.)={a:3}"},
	        {"<arg name='a' base='hex' type='int'/>", "c: m(.)={a,base,hex:3}"},
	        {"<arg name='x' type='value'/>", "c: m(.)=x"},
	        {"a<arg name='x' type='value'/>b", "c: m(.)=a#x#b"},
	        {"<arg name='a'>text</arg>", "c: m(.)={a:1}"},
	        {"<arg name='a'> <!--c--> text <!--c--></arg>", "c: m(.)={a:1}"},
	        {"<arg name='a'><!--arg--></arg>", "c: m(.)={a:1}"},
	        {"<arg name='a'></arg x='msh'>y", "c: m(.)={a:1}y"},
	        {"<arg name='arg'/>", "c: m(.)={arg:1}"},
	        {"<arg name='argument' arg='arg'/>", "c: m(.)={argument,arg,arg:1}"},
	        {"<arg name='msg' msg='msg'/>", "c: m(.)={msg,msg,msg:1}"},
	    },
	    message);
}

TEST(xmc_file_format, argument_type_words) {
	std::vector<std::pair<std::string, int>> const words = {
	    {"value", 0},       {"string", 1},   {"number", 2},       {"int", 3},       {"double", 4},
	    {"time", 5},        {"date", 6},     {"memory", 7},       {"mem", 7},       {"mem_unit", 8},
	    {"memory_unit", 8}, {"metric", 9},   {"metric_unit", 10}, {"duration", 11}, {"INT", 3},
	    {"Mem_Unit", 8},    {"in", 1},       {"integer", 1},      {"", 1},          {" int", 1},
	    {"memor", 1},       {"\xC3\xA9", 1},
	};
	std::vector<content_row> rows;
	rows.reserve(words.size());
	for (auto const &[word, type] : words) {
		rows.push_back({"<arg name='a' type='" + word + "'/>", "c: m(.)=" + quor_test::xmc_item(type, "a")});
	}
	expect_contents(rows, message);
}

TEST(xmc_file_format, tags_with_attributes_behind_an_end_are_stepped_over_in_messages) {
	expect_contents(
	    {
	        {"x<br></br a='1'>y", "c: m(.)=x\ny"},
	        {"<arg name='a'></arg x='1'> y", "c: m(.)={a:1} y"},
	    },
	    message);
	// "msg" as such a name or value ends the message all the same.
	expect_faults({{"x<br></br msg='1'>y", 13, "Expected catalog end tag not found for catalog \"c\""},
	               {"x<br></br a='msg'>y", 13, "Expected catalog end tag not found for catalog \"c\""}},
	              message, "\n in catalog element: \"c\"\n in file: \"f\"");
}

} // namespace
