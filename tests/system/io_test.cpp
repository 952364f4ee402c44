#include <gtest/gtest.h>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"

namespace {

namespace io = quor::system::io;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor_test::ascii_as;
using quor_test::temporary_directory;
using quor_test::working_directory;

template <class Text>
class io_all_widths : public testing::Test {
protected:
	Text path(std::string const &name = {}) const { return ascii_as<Text>(m_directory.path(name)); }

	temporary_directory m_directory;
};

using text_classes = testing::Types<ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(io_all_widths, text_classes);

TYPED_TEST(io_all_widths, status_of_directory_file_and_nothing) {
	this->m_directory.write("f.txt", "x");
	struct row {
		char const *name;
		bool exists, is_directory, is_file;
	};
	for (auto const &[name, exists, is_directory, is_file] :
	     {row{"", true, true, false}, row{"f.txt", true, false, true}, row{"missing", false, false, false},
	      row{"missing\\below", false, false, false}, row{"f.txt\\below", false, false, false},
	      row{".", true, true, false}, row{"..", true, true, false}}) {
		SCOPED_TRACE(name);
		EXPECT_EQ(io::exists(this->path(name)), exists);
		EXPECT_EQ(io::is_directory(this->path(name)), is_directory);
		EXPECT_EQ(io::is_file(this->path(name)), is_file);
	}
}

TYPED_TEST(io_all_widths, status_of_the_empty_path_is_false) {
	EXPECT_FALSE(io::exists(TypeParam()));
	EXPECT_FALSE(io::is_directory(TypeParam()));
	EXPECT_FALSE(io::is_file(TypeParam()));
}

TYPED_TEST(io_all_widths, path_ends_at_its_first_zero_unit) {
	this->m_directory.write("f.txt", "x");
	auto path = this->path("f.txt");
	path.push_back(0);
	path += ascii_as<TypeParam>("more");
	EXPECT_TRUE(io::is_file(path));
}

TYPED_TEST(io_all_widths, move_takes_the_new_name_first) {
	this->m_directory.write("a.txt", "content");
	io::move(this->path("b.txt"), this->path("a.txt"));
	EXPECT_FALSE(this->m_directory.has("a.txt"));
	EXPECT_EQ(this->m_directory.read("b.txt"), "content");
}

TYPED_TEST(io_all_widths, move_renames_directories) {
	this->m_directory.write("d/f.txt", "content");
	io::move(this->path("e"), this->path("d"));
	EXPECT_FALSE(this->m_directory.has("d"));
	EXPECT_EQ(this->m_directory.read("e/f.txt"), "content");
}

TYPED_TEST(io_all_widths, move_onto_something_changes_nothing) {
	this->m_directory.write("a.txt", "a");
	this->m_directory.write("b.txt", "b");
	this->m_directory.make_directory("empty");
	this->m_directory.make_directory("other");
	io::move(this->path("b.txt"), this->path("a.txt"));
	io::move(this->path("empty"), this->path("a.txt"));
	io::move(this->path("empty"), this->path("other"));
	io::move(this->path("a.txt"), this->path("a.txt"));
	EXPECT_EQ(this->m_directory.read("a.txt"), "a");
	EXPECT_EQ(this->m_directory.read("b.txt"), "b");
	EXPECT_TRUE(this->m_directory.has("empty"));
	EXPECT_TRUE(this->m_directory.has("other"));
}

TYPED_TEST(io_all_widths, move_that_cannot_be_done_changes_nothing) {
	this->m_directory.write("a.txt", "a");
	io::move(this->path("missing\\b.txt"), this->path("a.txt"));
	io::move(this->path("b.txt"), this->path("missing.txt"));
	io::move(TypeParam(), this->path("a.txt"));
	io::move(this->path("b.txt"), TypeParam());
	EXPECT_EQ(this->m_directory.read("a.txt"), "a");
	EXPECT_FALSE(this->m_directory.has("b.txt"));
}

TYPED_TEST(io_all_widths, remove_file_deletes_files_only) {
	this->m_directory.write("f.txt", "x");
	this->m_directory.make_directory("d");
	io::remove_file(this->path("f.txt"));
	io::remove_file(this->path("d"));
	io::remove_file(this->path("missing"));
	io::remove_file(TypeParam());
	EXPECT_FALSE(this->m_directory.has("f.txt"));
	EXPECT_TRUE(this->m_directory.has("d"));
}

TYPED_TEST(io_all_widths, remove_dir_deletes_empty_directories_only) {
	this->m_directory.write("f.txt", "x");
	this->m_directory.write("full/f.txt", "x");
	this->m_directory.make_directory("empty");
	io::remove_dir(this->path("f.txt"));
	io::remove_dir(this->path("full"));
	io::remove_dir(this->path("empty"));
	io::remove_dir(this->path("missing"));
	io::remove_dir(TypeParam());
	EXPECT_TRUE(this->m_directory.has("f.txt"));
	EXPECT_TRUE(this->m_directory.has("full/f.txt"));
	EXPECT_FALSE(this->m_directory.has("empty"));
}

TEST(io, literals_of_every_width_are_understood) {
	temporary_directory const directory;
	directory.write("a.txt", "x");
	working_directory const here(directory.root());
	EXPECT_TRUE(io::exists("a.txt"));
	EXPECT_TRUE(io::exists(QUOR_W("a.txt")));
	EXPECT_TRUE(io::exists(QUOR_U32("a.txt")));
	EXPECT_TRUE(io::exists(std::string("a.txt")));
	EXPECT_TRUE(io::exists(quor::types::wide_string(QUOR_W("a.txt"))));
	EXPECT_TRUE(io::is_file("a.txt"));
	EXPECT_TRUE(io::is_file(QUOR_W("a.txt")));
	EXPECT_TRUE(io::is_file(QUOR_U32("a.txt")));
	EXPECT_TRUE(io::is_directory("."));
	EXPECT_TRUE(io::is_directory(QUOR_W(".")));
	EXPECT_TRUE(io::is_directory(QUOR_U32(".")));
	io::move("b.txt", "a.txt");
	EXPECT_TRUE(directory.has("b.txt"));
	io::move(std::string("c.txt"), "b.txt");
	io::move(QUOR_W("d.txt"), QUOR_W("c.txt"));
	io::move(QUOR_U32("b.txt"), QUOR_U32("d.txt"));
	EXPECT_TRUE(directory.has("b.txt"));
	io::remove_file(QUOR_W("none"));
	io::remove_file(QUOR_U32("none"));
	io::remove_dir(QUOR_W("none"));
	io::remove_dir(QUOR_U32("none"));
	io::remove_file("b.txt");
	EXPECT_FALSE(directory.has("b.txt"));
	directory.make_directory("d");
	io::remove_dir("d");
	EXPECT_FALSE(directory.has("d"));
}

TEST(io, malformed_paths_lead_to_the_file_named_minus_one) {
	temporary_directory const directory;
	directory.write("-1", "x");
	working_directory const here(directory.root());
	EXPECT_TRUE(io::is_file(ustring8("abc\xE2")));
	EXPECT_TRUE(io::is_file(ustring8("\xFF")));
	EXPECT_TRUE(io::is_file(ustring32(1, static_cast<quor::types::utf32_char>(0x110000))));
	EXPECT_TRUE(io::is_file(ustring32(1, static_cast<quor::types::utf32_char>(0xD800))));
}

TEST(io, names_beyond_ascii_are_the_same_file_in_every_width) {
	temporary_directory const directory;
	working_directory const here(directory.root());
	EXPECT_EQ(quor::system::store_file(ustring8("caf\xC3\xA9 \xE6\x97\xA5"), "x"), 0);
	quor::types::wide_char const wide[] = {'c', 'a', 'f', 0xE9, ' ', 0x65E5, 0};
	quor::types::utf32_char const full[] = {'c', 'a', 'f', 0xE9, ' ', 0x65E5, 0};
	EXPECT_TRUE(io::is_file(ustring16(wide)));
	EXPECT_TRUE(io::is_file(ustring32(full)));
}

TEST(io, points_above_ffff_move_on_the_way_to_the_system) {
	temporary_directory const directory;
	working_directory const here(directory.root());
	// U+10000 in UTF-8 becomes the pair that decodes to U+20000.
	EXPECT_EQ(quor::system::store_file(ustring8("\xF0\x90\x80\x80"), "x"), 0);
	quor::types::wide_char const moved[] = {0xD840, 0xDC00, 0};
	quor::types::wide_char const plain[] = {0xD800, 0xDC00, 0};
	EXPECT_TRUE(io::is_file(ustring16(moved)));
	EXPECT_FALSE(io::is_file(ustring16(plain)));
	EXPECT_TRUE(io::is_file(ustring32(1, static_cast<quor::types::utf32_char>(0x10000))));
	EXPECT_FALSE(io::is_file(ustring8("\xF0\xA0\x80\x80")));
}

} // namespace
