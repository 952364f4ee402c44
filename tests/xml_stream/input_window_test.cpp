#include <gtest/gtest.h>

#include <string>

#include "support/stream_file.hpp"
#include "xml_stream/input_window.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::xml_stream::detail::input_window;
using outcome = input_window::outcome;
using quor_test::ascii_as;
using quor_test::stream_file;

std::string numbered(std::size_t size) {
	std::string text;
	for (std::size_t i = 0; text.size() < size; ++i) {
		text += std::to_string(i) + ' ';
	}
	return text.substr(0, size);
}

quor::types::wide_string path_of(stream_file const &file) {
	return ascii_as<quor::types::wide_string>(file.path());
}

TEST(input_window, load_moves_the_view_on_from_what_is_committed) {
	stream_file const file;
	std::string const content = numbered(150000);
	file.write(content);
	input_window window(path_of(file));
	std::size_t at = 0;
	for (std::size_t step : {0U, 10U, 65536U, 0U, 1U, 30000U}) {
		window.read.at = window.committed.at + step;
		window.commit();
		at += step;
		bool const moves = step != 0 || at == 0;
		EXPECT_EQ(window.load(), moves ? outcome::more : outcome::full) << at;
		EXPECT_EQ(window.uncommitted(), std::string_view(content).substr(at, input_window::capacity)) << at;
		EXPECT_EQ(window.offset(), at);
		EXPECT_EQ(window.remaining(), window.uncommitted().size());
	}
	EXPECT_EQ(window.load(), outcome::none);
	window.read.at += 5;
	EXPECT_EQ(window.load(), outcome::none);
	EXPECT_EQ(window.read.at, window.committed.at + 5) << "at the file's end the cursors stay";
	file.remove();
	EXPECT_EQ(window.load(), outcome::not_opened);
}

TEST(input_window, what_is_promised_is_read_when_it_is_needed) {
	stream_file const file;
	std::string const content = numbered(300000);
	file.write(content);
	input_window window(path_of(file));
	EXPECT_EQ(window.load(), outcome::more);
	EXPECT_FALSE(window.is_behind());
	window.read.at += 10;
	window.commit();
	window.promise();
	EXPECT_TRUE(window.is_behind());
	EXPECT_EQ(window.uncommitted().size(), input_window::capacity - 10) << "nothing was read";
	window.read.at = window.end - 3;
	window.commit();
	EXPECT_EQ(window.catch_up(), outcome::more);
	EXPECT_FALSE(window.is_behind());
	EXPECT_EQ(window.uncommitted(), std::string_view(content).substr(65533, 13)) << "the promise, and no more";
	// What is in memory comes into view without the file, from the committed cursor on.
	file.remove();
	window.read.at = window.end;
	EXPECT_EQ(window.load(), outcome::more);
	EXPECT_EQ(window.read.at, window.committed.at);
	EXPECT_EQ(window.offset(), 65533U);
	EXPECT_EQ(window.uncommitted(), std::string_view(content).substr(65533, input_window::capacity));
}

} // namespace
