// The texts of the loader's faults.

#include <gtest/gtest.h>

#include <quor/i18n/xmc_file_loader.hpp>

namespace {

namespace quor = QUOR_2_9;
using loader = quor::i18n::_private::xmc_file_loader;
using load_error = loader::load_error;
using parse_error = quor::parser::xml_parser::parse_error;
using quor::strings::ustring8;

std::string const prefix = "xmc_file_loader::load_error - ";
std::string const zero(1, '\0');

TEST(xmc_load_error, message_of_each_type) {
	struct row {
		loader::error_type type;
		int value;
		std::string text;
	};
	std::vector<row> const rows = {
	    {loader::load_none, 0, "No Error"},
	    {loader::load_no_catalog, 1, "No catalog was loaded in file: \"D\""},
	    {loader::load_no_default_locale, 2, "Default locale lookup not supported yet"},
	    {loader::load_file_not_found, 3, "File \"D\" was not found on disk"},
	    {loader::load_invalid_attribute, 5, "Invalid attibute \"D\""},
	    {loader::load_invalid_element, 6, "Invalid element \"D\""},
	    {loader::load_not_xmc, 7, "Not XMC file, root element is not XMC but \"D\""},
	    {loader::load_bad_version, 8, "XMC version \"D\" is not supported"},
	    {loader::load_no_br_end, 9, "Expected BR end tag not found"},
	    {loader::load_no_msg_end, 10, "Expected msg (message) end tag not found for message \"D\""},
	    {loader::load_no_arg_end, 11, "Expected arg (argument) end tag not found for argument \"D\""},
	    {loader::load_no_include_end, 12, "Expected \"include\" end tag not found"},
	    {loader::load_no_catalog_end, 13, "Expected catalog end tag not found for catalog \"D\""},
	    {loader::load_unexpected, 14, "Unexpected parse error happen!"},
	};
	for (row const &expected : rows) {
		SCOPED_TRACE(expected.value);
		EXPECT_EQ(expected.type, expected.value);
		// The data may hold anything, zero bytes too.
		for (std::string const &data : {std::string("D"), std::string(), "a" + zero + "b", std::string("\xE9")}) {
			std::string text = expected.text;
			if (std::size_t const place = text.find("\"D\""); place != std::string::npos) {
				text.replace(place + 1, 1, data);
			}
			load_error const error(expected.type, ustring8(data));
			EXPECT_EQ(error.type(), expected.type);
			EXPECT_EQ(error.message(), prefix + text);
			EXPECT_EQ(load_error::format_msg(expected.type, ustring8(data)), prefix + text);
		}
	}
}

TEST(xmc_load_error, message_of_other_values_is_the_unknown_text) {
	for (int const value : {4, 15, 99, -1, 2147483647}) {
		load_error const error(static_cast<loader::error_type>(value), "D");
		EXPECT_EQ(error.message(), "unknown, or unhandle case happened!  str data=D");
		EXPECT_EQ(error.type(), value);
	}
}

TEST(xmc_load_error, message_of_each_xml_fault) {
	std::string const line = "\n at line: \"4294967295\"";
	std::vector<std::string> const texts = {
	    "Unknown Parse error",
	    "Unexpected end of file during XML parsing",
	    "Mismatched end element \"T\" was found",
	    "No root element was found",
	    "Valid XML header not found",
	    "Unexpected character \"T\" found while parsing" + line,
	    "Missing \" while parsing attribute \"T\"" + line,
	    "Unknown enity being parsed" + line,
	    "Missing = sign for attribute \"T\"" + line,
	    "attribute \"T\" is being redefined" + line,
	    "Data found after root element" + line,
	    "Unknown Parse error",
	};
	for (std::size_t code = 0; code != texts.size(); ++code) {
		SCOPED_TRACE(code);
		parse_error const fault(static_cast<parse_error::error_code>(code), 4294967295U, "T");
		load_error const error(loader::load_xml_error, fault);
		EXPECT_EQ(error.type(), 4);
		EXPECT_EQ(error.message(), prefix + texts[code]);
		EXPECT_EQ(load_error::format_msg(loader::load_none, fault), prefix + texts[code]);
	}
	for (int const code : {-1, 99}) {
		parse_error const fault(static_cast<parse_error::error_code>(code), 1, "T");
		EXPECT_EQ(load_error(loader::load_xml_error, fault).message(), prefix + "Unknown Parse error");
	}
	parse_error const first_line(parse_error::error_unexpected_char, 0, ustring8(zero));
	EXPECT_EQ(load_error(loader::load_xml_error, first_line).message(),
	          prefix + "Unexpected character \"" + zero + "\" found while parsing\n at line: \"0\"");
}

TEST(xmc_load_error, append_error_stack_adds_a_line_for_each_kind) {
	struct row {
		int value;
		std::string text;
	};
	std::vector<row> const rows = {
	    {load_error::append_message, "\n in message element: \"D\""},
	    {load_error::append_catalog, "\n in catalog element: \"D\""},
	    {load_error::append_file, "\n in file: \"D\""},
	    {load_error::append_line, "\n at line: \"D\""},
	    {0, "\n unknown, or unhandle case happened!  str data=D"},
	    {5, "\n unknown, or unhandle case happened!  str data=D"},
	    {-7, "\n unknown, or unhandle case happened!  str data=D"},
	};
	load_error error(loader::load_no_br_end, "");
	std::string expected = error.message();
	for (row const &line : rows) {
		SCOPED_TRACE(line.value);
		auto const type = static_cast<load_error::append_type>(line.value);
		EXPECT_EQ(load_error::format_msg(type, "D"), line.text);
		error.append_error_stack(type, "D");
		expected += line.text;
		EXPECT_EQ(error.message(), expected);
	}
	EXPECT_EQ(load_error::append_message, 1);
	EXPECT_EQ(load_error::append_catalog, 2);
	EXPECT_EQ(load_error::append_file, 3);
	EXPECT_EQ(load_error::append_line, 4);
}

TEST(xmc_load_error, copy_has_the_same_fields) {
	load_error const source(loader::load_bad_version, "9");
	load_error copy(source);
	EXPECT_EQ(copy.type(), loader::load_bad_version);
	EXPECT_EQ(copy.message(), source.message());
	copy.append_error_stack(load_error::append_file, "f");
	EXPECT_NE(copy.message(), source.message());
	copy = source;
	EXPECT_EQ(copy.message(), source.message());
}

} // namespace
