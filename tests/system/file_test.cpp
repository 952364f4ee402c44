#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"

namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::system::have_read_access;
using quor::system::load_file;
using quor::system::store_file;
using quor_test::ascii_as;
using quor_test::temporary_directory;
using quor_test::working_directory;

template <class Text>
class file_all_widths : public testing::Test {
protected:
	Text path(std::string const &name = {}) const { return ascii_as<Text>(m_directory.path(name)); }

	temporary_directory m_directory;
};

using text_classes = testing::Types<ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(file_all_widths, text_classes);

TYPED_TEST(file_all_widths, load_file_gives_the_bytes_as_they_stand) {
	for (auto const &bytes :
	     {std::string(), std::string("a"), std::string("\xEF\xBB\xBF text"), std::string("\xFF\xFE\x80"),
	      std::string("a\0b\0", 4), std::string("line\r\nline\n\x1A end"), std::string(100000, 'x')}) {
		SCOPED_TRACE(testing::PrintToString(bytes.substr(0, 20)));
		this->m_directory.write("f.bin", bytes);
		std::string plain = "old";
		ustring8 text = "old content that is longer";
		EXPECT_EQ(load_file(this->path("f.bin"), plain), 0);
		EXPECT_EQ(load_file(this->path("f.bin"), text), 0);
		EXPECT_EQ(plain, bytes);
		EXPECT_EQ(text, bytes);
	}
}

TYPED_TEST(file_all_widths, load_file_that_cannot_be_opened_leaves_the_content) {
	this->m_directory.make_directory("d");
	this->m_directory.write("f.txt", "x");
	for (char const *name : {"missing", "d", "missing\\f.txt", "f.txt\\below", "."}) {
		SCOPED_TRACE(name);
		std::string plain = "old";
		ustring8 text = "old";
		EXPECT_EQ(load_file(this->path(name), plain), 1);
		EXPECT_EQ(load_file(this->path(name), text), 1);
		EXPECT_EQ(plain, "old");
		EXPECT_EQ(text, "old");
	}
	std::string content = "old";
	EXPECT_EQ(load_file(TypeParam(), content), 1);
	EXPECT_EQ(content, "old");
}

TYPED_TEST(file_all_widths, store_file_writes_all_bytes_and_replaces_the_old_ones) {
	ustring8 const content("a\0b\xFF\r\n", 6);
	this->m_directory.write("f.bin", std::string(1000, 'o'));
	EXPECT_EQ(store_file(this->path("f.bin"), content), 0);
	EXPECT_EQ(this->m_directory.read("f.bin"), content);
	EXPECT_EQ(store_file(this->path("new.bin"), content), 0);
	EXPECT_EQ(this->m_directory.read("new.bin"), content);
	EXPECT_EQ(store_file(this->path("new.bin"), ustring8()), 0);
	EXPECT_TRUE(this->m_directory.has("new.bin"));
	EXPECT_EQ(this->m_directory.read("new.bin"), "");
}

TYPED_TEST(file_all_widths, store_file_where_nothing_can_be_opened_gives_1) {
	this->m_directory.make_directory("d");
	for (char const *name : {"missing\\f.txt", "d", "."}) {
		SCOPED_TRACE(name);
		EXPECT_EQ(store_file(this->path(name), ustring8("x")), 1);
	}
	EXPECT_EQ(store_file(TypeParam(), ustring8("x")), 1);
	EXPECT_FALSE(this->m_directory.has("missing"));
}

TYPED_TEST(file_all_widths, random_content_makes_the_round_trip) {
	std::mt19937 random(91);
	for (int round = 0; round != 20; ++round) {
		ustring8 content(random() % 70000, 'x');
		for (auto &unit : content) {
			unit = static_cast<char>(random());
		}
		SCOPED_TRACE(round);
		ASSERT_EQ(store_file(this->path("f.bin"), content), 0);
		ustring8 back;
		ASSERT_EQ(load_file(this->path("f.bin"), back), 0);
		EXPECT_EQ(back, content);
	}
}

TYPED_TEST(file_all_widths, have_read_access_of_what_is_there_and_what_is_not) {
	this->m_directory.write("f.txt", "x");
	EXPECT_TRUE(have_read_access(this->path("f.txt")));
	EXPECT_TRUE(have_read_access(this->path()));
	EXPECT_FALSE(have_read_access(this->path("missing")));
	EXPECT_FALSE(have_read_access(TypeParam()));
}

TEST(file, literals_of_every_width_are_understood) {
	temporary_directory const directory;
	working_directory const here(directory.root());
	EXPECT_EQ(store_file("f.txt", "content"), 0);
	std::string plain;
	ustring8 text;
	EXPECT_EQ(load_file("f.txt", plain), 0);
	EXPECT_EQ(plain, "content");
	EXPECT_EQ(load_file("f.txt", text), 0);
	EXPECT_EQ(load_file(QUOR_W("f.txt"), text), 0);
	EXPECT_EQ(load_file(QUOR_U32("f.txt"), text), 0);
	EXPECT_EQ(load_file(std::string("f.txt"), text), 0);
	EXPECT_EQ(text, "content");
	EXPECT_EQ(load_file(std::string("f.txt"), plain), 0);
	EXPECT_EQ(load_file(quor::types::wide_string(QUOR_W("f.txt")), plain), 0);
	EXPECT_EQ(load_file(QUOR_U32("f.txt"), plain), 0);
	EXPECT_TRUE(have_read_access("f.txt"));
	EXPECT_TRUE(have_read_access(QUOR_W("f.txt")));
	EXPECT_TRUE(have_read_access(QUOR_U32("f.txt")));
	EXPECT_TRUE(have_read_access(std::string("f.txt")));
	EXPECT_EQ(store_file(QUOR_W("w.txt"), plain), 0);
	EXPECT_EQ(store_file(QUOR_U32("u.txt"), text), 0);
	EXPECT_EQ(store_file(std::string("s.txt"), std::string("s")), 0);
	EXPECT_EQ(store_file(quor::types::wide_string(QUOR_W("x.txt")), std::string("x")), 0);
	EXPECT_EQ(directory.read("w.txt"), "content");
	EXPECT_EQ(directory.read("x.txt"), "x");
}

TEST(file, load_file_into_the_path_itself_is_safe) {
	temporary_directory const directory;
	directory.write("f.txt", "content");
	auto path = directory.path("f.txt");
	EXPECT_EQ(load_file(path, path), 0);
	EXPECT_EQ(path, "content");
}

TEST(file, store_file_of_the_path_itself_is_safe) {
	temporary_directory const directory;
	auto const path = directory.path("f.txt");
	EXPECT_EQ(store_file(path, path), 0);
	EXPECT_EQ(directory.read("f.txt"), path);
}

} // namespace
