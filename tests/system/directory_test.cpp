#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"

namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::system::create_directory;
using quor::system::get_directory_files;
using quor::system::list_directory;
using quor_test::ascii_as;
using quor_test::temporary_directory;
using quor_test::working_directory;

template <class Text>
std::vector<Text> sorted(std::vector<Text> paths) {
	std::sort(paths.begin(), paths.end());
	return paths;
}

template <class Text>
class directory_all_widths : public testing::Test {
protected:
	Text path(std::string const &name = {}) const { return ascii_as<Text>(m_directory.path(name)); }

	std::vector<Text> paths(std::vector<std::string> const &names) const {
		std::vector<Text> result;
		result.reserve(names.size());
		for (auto const &name : names) {
			result.push_back(path(name));
		}
		return sorted(result);
	}

	temporary_directory m_directory;
};

using text_classes = testing::Types<ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(directory_all_widths, text_classes);

TYPED_TEST(directory_all_widths, create_directory_that_exists_is_true) {
	EXPECT_TRUE(create_directory(this->path()));
	this->m_directory.make_directory("d");
	EXPECT_TRUE(create_directory(this->path("d")));
}

TYPED_TEST(directory_all_widths, create_directory_makes_the_parents) {
	EXPECT_TRUE(create_directory(this->path("x\\y\\z")));
	EXPECT_TRUE(this->m_directory.has("x/y/z"));
	EXPECT_TRUE(create_directory(this->path("x\\y\\z")));
	EXPECT_TRUE(create_directory(this->path("x\\y\\w")));
	EXPECT_TRUE(this->m_directory.has("x/y/w"));
}

TYPED_TEST(directory_all_widths, create_directory_with_a_last_backslash_makes_it_and_is_false) {
	EXPECT_FALSE(create_directory(this->path("x\\y\\")));
	EXPECT_TRUE(this->m_directory.has("x/y"));
}

TYPED_TEST(directory_all_widths, create_directory_over_a_file_is_false) {
	this->m_directory.write("f.txt", "x");
	EXPECT_FALSE(create_directory(this->path("f.txt")));
	EXPECT_FALSE(create_directory(this->path("f.txt\\below")));
	EXPECT_EQ(this->m_directory.read("f.txt"), "x");
}

TYPED_TEST(directory_all_widths, create_directory_is_not_cut_at_forward_slashes) {
	EXPECT_FALSE(create_directory(this->path("x/y")));
	EXPECT_FALSE(this->m_directory.has("x"));
	this->m_directory.make_directory("x");
	EXPECT_TRUE(create_directory(this->path("x/y")));
	EXPECT_TRUE(this->m_directory.has("x/y"));
}

TYPED_TEST(directory_all_widths, create_directory_takes_doubled_backslashes) {
	EXPECT_TRUE(create_directory(this->path("x\\\\y")));
	EXPECT_TRUE(this->m_directory.has("x/y"));
}

TYPED_TEST(directory_all_widths, create_directory_from_an_empty_working_directory) {
	working_directory const here(this->m_directory.root());
	EXPECT_TRUE(create_directory(ascii_as<TypeParam>("x\\y\\z")));
	EXPECT_TRUE(this->m_directory.has("x/y/z"));
	EXPECT_TRUE(create_directory(ascii_as<TypeParam>("w")));
	EXPECT_TRUE(this->m_directory.has("w"));
	EXPECT_FALSE(create_directory(ascii_as<TypeParam>("v\\")));
	EXPECT_TRUE(this->m_directory.has("v"));
}

std::string stopped_with;

TYPED_TEST(directory_all_widths, create_directory_of_the_empty_path_is_a_checked_index_stop) {
	stopped_with.clear();
	auto const previous = quor::debug::set_invalid_parameter_handler(
	    [](char const *what, char const *file, unsigned int) { stopped_with = std::string(what) + "|" + file; });
	EXPECT_FALSE(create_directory(TypeParam()));
	EXPECT_EQ(stopped_with, "string subscript out of range|system\\directory");
	quor::debug::set_invalid_parameter_handler(
	    [](char const *what, char const *, unsigned int) { throw std::out_of_range(what); });
	EXPECT_THROW(create_directory(TypeParam()), std::out_of_range);
	quor::debug::set_invalid_parameter_handler(previous);
}

TYPED_TEST(directory_all_widths, get_directory_files_finds_all_files_and_no_directories) {
	this->m_directory.write("a.txt", "");
	this->m_directory.write("sub/b.txt", "");
	this->m_directory.write("sub/deep/deeper/c.txt", "");
	this->m_directory.write(".hidden", "");
	this->m_directory.make_directory("empty");
	std::vector<TypeParam> files;
	get_directory_files(this->path(), files);
	EXPECT_EQ(sorted(files), this->paths({"a.txt", "sub\\b.txt", "sub\\deep\\deeper\\c.txt", ".hidden"}));
}

TYPED_TEST(directory_all_widths, get_directory_files_appends) {
	this->m_directory.write("a.txt", "");
	std::vector<TypeParam> files{ascii_as<TypeParam>("first")};
	get_directory_files(this->path(), files);
	get_directory_files(this->path(), files);
	EXPECT_EQ(files, (std::vector<TypeParam>{ascii_as<TypeParam>("first"), this->path("a.txt"), this->path("a.txt")}));
}

TYPED_TEST(directory_all_widths, get_directory_files_of_no_directory_adds_nothing) {
	this->m_directory.write("f.txt", "");
	std::vector<TypeParam> files;
	get_directory_files(this->path("missing"), files);
	get_directory_files(this->path("f.txt"), files);
	get_directory_files(TypeParam(), files);
	auto with_zero = this->path();
	with_zero.push_back(0);
	get_directory_files(with_zero, files);
	EXPECT_EQ(files, std::vector<TypeParam>());
}

TYPED_TEST(directory_all_widths, get_directory_files_takes_an_element_of_the_files_as_path) {
	this->m_directory.write("a.txt", "");
	this->m_directory.write("sub/b.txt", "");
	std::vector<TypeParam> files{this->path()};
	files.shrink_to_fit();
	get_directory_files(files.front(), files);
	EXPECT_EQ(sorted(files), this->paths({"", "a.txt", "sub\\b.txt"}));
}

TYPED_TEST(directory_all_widths, get_directory_files_is_depth_first) {
	for (char const *name : {"d/1", "d/e/2", "d/e/3", "d/f/4", "5", "g/6"}) {
		this->m_directory.write(name, "");
	}
	std::vector<TypeParam> files;
	get_directory_files(this->path(), files);
	ASSERT_EQ(files.size(), 6U);
	// All files below one directory stand together, whatever the order of the names is.
	for (char const *name : {"d\\", "d\\e\\", "d\\f\\", "g\\"}) {
		SCOPED_TRACE(name);
		auto const prefix = this->path(name);
		auto const below = [&](TypeParam const &file) { return file.compare(0, prefix.size(), prefix) == 0; };
		auto const first = std::find_if(files.begin(), files.end(), below);
		auto const last = std::find_if_not(first, files.end(), below);
		EXPECT_TRUE(std::none_of(last, files.end(), below));
	}
}

TYPED_TEST(directory_all_widths, list_directory_gives_files_and_directories_of_one_level) {
	this->m_directory.write("a.txt", "");
	this->m_directory.write("sub/b.txt", "");
	this->m_directory.make_directory("empty");
	EXPECT_EQ(sorted(list_directory(this->path())), this->paths({"a.txt", "sub", "empty"}));
}

TYPED_TEST(directory_all_widths, list_directory_of_one_file_gives_its_full_path) {
	this->m_directory.write("d/only.txt", "");
	EXPECT_EQ(list_directory(this->path("d")), this->paths({"d\\only.txt"}));
}

TYPED_TEST(directory_all_widths, listings_keep_the_text_of_the_argument_in_front) {
	this->m_directory.write("d/f.txt", "");
	EXPECT_EQ(list_directory(this->path("d\\")), this->paths({"d\\\\f.txt"}));
	EXPECT_EQ(list_directory(this->path("d/../d")), this->paths({"d/../d\\f.txt"}));
	std::vector<TypeParam> files;
	get_directory_files(this->path("d\\"), files);
	EXPECT_EQ(files, this->paths({"d\\\\f.txt"}));
}

TYPED_TEST(directory_all_widths, list_directory_of_no_directory_is_empty) {
	this->m_directory.write("f.txt", "");
	this->m_directory.make_directory("empty");
	EXPECT_TRUE(list_directory(this->path("missing")).empty());
	EXPECT_TRUE(list_directory(this->path("f.txt")).empty());
	EXPECT_TRUE(list_directory(this->path("empty")).empty());
	EXPECT_TRUE(list_directory(TypeParam()).empty());
	auto with_zero = this->path();
	with_zero.push_back(0);
	EXPECT_TRUE(list_directory(with_zero).empty());
}

TEST(directory, literals_of_every_width_are_understood) {
	temporary_directory const directory;
	working_directory const here(directory.root());
	EXPECT_TRUE(create_directory("d"));
	directory.write("d/f.txt", "");
	std::vector<ustring8> narrow;
	std::vector<ustring16> wide;
	std::vector<ustring32> full;
	get_directory_files("d", narrow);
	get_directory_files(QUOR_W("d"), wide);
	get_directory_files(QUOR_U32("d"), full);
	EXPECT_EQ(narrow, list_directory("d"));
	EXPECT_EQ(wide, list_directory(QUOR_W("d")));
	EXPECT_EQ(full, list_directory(QUOR_U32("d")));
	EXPECT_EQ(narrow, std::vector<ustring8>{"d\\f.txt"});
	EXPECT_EQ(narrow, list_directory(std::string("d")));
	get_directory_files(std::string("d"), narrow);
	EXPECT_EQ(narrow.size(), 2U);
	EXPECT_TRUE(create_directory(std::string("s")));
	EXPECT_TRUE(create_directory(quor::types::wide_string(QUOR_W("t"))));
	EXPECT_TRUE(create_directory(QUOR_W("w")));
	EXPECT_TRUE(create_directory(QUOR_U32("u")));
}

TEST(directory, listings_keep_points_above_ffff_in_names) {
	temporary_directory const directory;
	quor::types::wide_char const name[] = {'\\', 0xD83D, 0xDE00, 0};
	ustring16 const root = ascii_as<ustring16>(directory.path());
	ASSERT_EQ(quor::system::store_file(ustring16(root + name), "x"), 0);
	std::vector<ustring8> files;
	get_directory_files(directory.path(), files);
	EXPECT_EQ(files, std::vector<ustring8>{directory.path("\xF0\x9F\x98\x80")});
	EXPECT_EQ(list_directory(directory.path()), files);
	EXPECT_EQ(list_directory(root), std::vector<ustring16>{root + name});
	EXPECT_EQ(list_directory(quor::strings::utf16_to_utf32(root)),
	          std::vector<ustring32>{quor::strings::utf16_to_utf32(root + name)});
	// The text that comes back names another file when it is UTF-8.
	EXPECT_FALSE(quor::system::io::exists(files[0]));
	EXPECT_TRUE(quor::system::io::exists(ustring16(root + name)));
}

TEST(directory, listings_begin_with_the_path_as_it_reached_the_system) {
	temporary_directory const directory;
	working_directory const here(directory.root());
	// U+10000 moves to U+20000, and malformed text becomes "-1".
	EXPECT_TRUE(create_directory("\xF0\x90\x80\x80"));
	EXPECT_TRUE(create_directory("-1"));
	EXPECT_EQ(quor::system::store_file("\xF0\x90\x80\x80\\f", "x"), 0);
	EXPECT_EQ(quor::system::store_file("-1\\g", "x"), 0);
	std::vector<ustring8> files;
	get_directory_files("\xF0\x90\x80\x80", files);
	get_directory_files("bad \xFF", files);
	EXPECT_EQ(files, (std::vector<ustring8>{"\xF0\xA0\x80\x80\\f", "-1\\g"}));
	EXPECT_EQ(list_directory("bad \xFF"), std::vector<ustring8>{"-1\\g"});
}

} // namespace
