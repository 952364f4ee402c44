#include <gtest/gtest.h>

#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"

namespace {

using parser = quor::xml_stream::xml_stream_parser;
using quor_test::temporary_directory;

std::string const content = "<?xml version=\"1.0\" encoding=\"utf-8\"                ?><r><s>x</s></r>";

TEST(posix_streams, nothing_waits_for_a_pipe_or_a_device) {
	temporary_directory const directory;
	ASSERT_EQ(::mkfifo((directory.root() / "pipe").c_str(), 0600), 0);
	for (quor::strings::ustring8 const &path :
	     {directory.path("pipe"), quor::strings::ustring8("/dev/null"), quor::strings::ustring8("/dev/tty"),
	      quor::strings::ustring8("/dev/zero")}) {
		parser from(path, 1);
		EXPECT_EQ(from.parse(), parser::status_file) << path;
		EXPECT_EQ(from.file_length(), 0U) << path;
	}
}

TEST(posix_streams, a_link_leads_to_its_file) {
	temporary_directory const directory;
	directory.write("file", content);
	ASSERT_EQ(::symlink("file", (directory.root() / "link").c_str()), 0);
	parser from(directory.path("link"), 1);
	EXPECT_EQ(from.parse(), parser::status_end_of_document);
}

// A directory or pipe that takes the file's place is as good as none.
TEST(posix_streams, what_takes_the_place_of_the_file_doesnt_open) {
	temporary_directory const directory;
	directory.write("file", content.substr(0, content.size() - 4));
	parser from(directory.path("file"), 1);
	EXPECT_EQ(from.parse(), parser::status_more_input);
	std::filesystem::remove(directory.root() / "file");
	ASSERT_EQ(::mkfifo((directory.root() / "file").c_str(), 0600), 0);
	EXPECT_EQ(from.parse(), parser::status_file);
}

TEST(posix_streams, another_process_may_hold_the_file_and_write_to_it) {
	temporary_directory const directory;
	directory.write("file", content.substr(0, 60));
	int const writer = ::open((directory.root() / "file").c_str(), O_WRONLY | O_APPEND);
	ASSERT_NE(writer, -1);
	parser from(directory.path("file"), 1);
	EXPECT_EQ(from.parse(), parser::status_more_input);
	std::string const rest = content.substr(60);
	EXPECT_EQ(::write(writer, rest.data(), rest.size()), static_cast<ssize_t>(rest.size()));
	EXPECT_EQ(from.parse(), parser::status_end_of_document);
	::close(writer);
}

} // namespace
