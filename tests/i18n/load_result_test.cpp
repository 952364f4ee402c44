#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include <quor/quor.hpp>

namespace {

using quor::i18n::load_result_types;
using quor::i18n::message_catalogs;
using quor::strings::ustring8;
using loader = quor::i18n::_private::xmc_file_loader;
using result_type = load_result_types::result_type;

std::string const prefix = "message_catalogs::result_type - ";

TEST(load_result, kinds_have_their_numbers_and_texts) {
	struct row {
		load_result_types::error_type type;
		int number;
		std::string text;
	};
	for (auto const &[type, number, text] : {
	         row{load_result_types::no_error, 0, prefix + "No Error"},
	         row{load_result_types::no_catalog, 1, prefix + "No catalog was loaded in file: \"a\\b\""},
	         row{load_result_types::file_not_found, 3, prefix + "File \"a\\b\" was not found on disk"},
	         row{load_result_types::directory_not_found, 4, prefix + "Directory \"a\\b\" was not found on disk"},
	         row{load_result_types::entity_not_found, 5,
	             prefix + "Entity (file or directory) \"a\\b\" was not found on disk"},
	         row{load_result_types::load_failed, 6, "unknown, or unhandle case happened!  str data=a\\b"},
	         row{static_cast<load_result_types::error_type>(2), 2,
	             "unknown, or unhandle case happened!  str data=a\\b"},
	         row{static_cast<load_result_types::error_type>(99), 99,
	             "unknown, or unhandle case happened!  str data=a\\b"},
	         row{static_cast<load_result_types::error_type>(-1), -1,
	             "unknown, or unhandle case happened!  str data=a\\b"},
	     }) {
		SCOPED_TRACE(number);
		EXPECT_EQ(static_cast<int>(type), number);
		result_type const result(type, "a\\b");
		EXPECT_EQ(result.message(), text);
		EXPECT_EQ(result_type::format_message(type, "a\\b"), text);
		EXPECT_TRUE(result == type);
		EXPECT_EQ(static_cast<bool>(result), number != 0);
	}
}

TEST(load_result, data_stands_as_it_is) {
	ustring8 const data("a\"\0\xFF", 4);
	EXPECT_EQ(result_type(load_result_types::file_not_found, data).message(),
	          ustring8(prefix) + "File \"" + data + "\" was not found on disk");
}

TEST(load_result, faults_of_the_loader_have_their_kind_and_first_line) {
	struct row {
		int type;
		load_result_types::error_type kind;
		char const *line;
	};
	for (auto const &[type, kind, line] : {
	         row{0, load_result_types::no_error, "No Error\n "},
	         row{1, load_result_types::no_catalog, "No catalog was loaded\n "},
	         row{2, load_result_types::load_failed, "Default locale lookup not supported yet\n "},
	         row{3, load_result_types::file_not_found, "File was not found on disk\n "},
	         row{4, load_result_types::load_failed, "XML parse error, XML file not well formed\n "},
	         row{5, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{6, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{7, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{8, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{9, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{10, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{11, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{12, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{13, load_result_types::load_failed, "XMC file is not valid\n "},
	         row{14, load_result_types::load_failed, "Unexpected error happened during loading\n "},
	     }) {
		SCOPED_TRACE(type);
		loader::load_error error(static_cast<loader::error_type>(type), "data");
		error.append_error_stack(loader::load_error::append_file, "f.xmc");
		result_type const result(error);
		EXPECT_EQ(static_cast<load_result_types::error_type>(result), kind);
		EXPECT_EQ(result.message(), ustring8(prefix) + line + error.message());
		EXPECT_EQ(result_type::format_message(error), result.message());
	}
}

TEST(load_result, kind_of_other_faults_is_none_of_the_listed) {
	result_type const result{loader::load_error(loader::load_bad_version, "2.0")};
	for (auto const listed :
	     {load_result_types::no_error, load_result_types::no_catalog, load_result_types::file_not_found,
	      load_result_types::directory_not_found, load_result_types::entity_not_found}) {
		EXPECT_TRUE(result != listed);
	}
}

TEST(load_result, copies_and_assignments_are_values) {
	result_type const first(message_catalogs::directory_not_found, "d");
	result_type second(message_catalogs::no_error, "");
	second = first;
	result_type const third(second);
	EXPECT_TRUE(third == message_catalogs::directory_not_found);
	EXPECT_EQ(third.message(), first.message());
}

TEST(load_result, stream_takes_constants_and_temporaries) {
	std::ostringstream stream;
	result_type changing(message_catalogs::file_not_found, "f");
	result_type const constant(message_catalogs::file_not_found, "f");
	stream << changing << '|' << constant << '|' << result_type(message_catalogs::no_error, "");
	EXPECT_EQ(stream.str(), constant.message() + "|" + constant.message() + "|" + prefix + "No Error");
}

} // namespace
