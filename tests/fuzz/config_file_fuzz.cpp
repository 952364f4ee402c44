// Configuration files against the slow reader and writer. An input is a file's text; it is
// read, the tree is written, and what was written is read and written again. Keys of one
// byte and arrays at the end are counted, not stopped at.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "support/config_file_check.hpp"
#include "support/stop_handler.hpp"

namespace {

using QUOR_2_9::config::config_tree;
using quor_test::listing_text;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

config_tree check_reader(std::string const &text) {
	reference::cfg_contents const expected = reference::cfg_reader::read(text);
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	config_tree tree = quor_test::read_tree(text);
	check(stops.count() == expected.one_byte_keys, "stops of the reader");
	check(listing_text(tree) == listing_text(quor_test::stored(expected)), "the tree is the reference's");
	return tree;
}

std::string check_writer(config_tree const &tree) {
	auto const nodes = quor_test::nodes_of(tree);
	reference::cfg_written const expected = quor_test::slowly_written(nodes);
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	std::string text = QUOR_2_9::config::detail::config_file_text(nodes);
	check(stops.count() == expected.stops, "stops of the writer");
	check(text == expected.text, "the text is the reference's");
	return text;
}

// A handler that throws ends the reading.
void check_throwing(std::string const &text, config_tree const &whole) {
	quor_test::stop_handler const stops(quor_test::on_stop::throws);
	config_tree tree;
	QUOR_2_9::strings::ustring8 const copy(text);
	try {
		QUOR_2_9::config::detail::config_file_reader(copy, tree).read();
		check(listing_text(tree) == listing_text(whole), "nothing was thrown, so all is there");
	} catch (quor_test::stopped const &) {
		check(quor_test::nodes_of(tree).size() <= quor_test::nodes_of(whole).size(), "no more than all is there");
	}
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	// The slow writer takes the square of the entries, the text of deep keys that of their depth.
	std::string const text(data, data + (size < 2048 ? size : 2048));
	config_tree const tree = check_reader(text);
	check_throwing(text, tree);
	std::string const written = check_writer(tree);
	if (written.size() < 65536) {
		check_writer(check_reader(written));
	}
	for (std::size_t pos = 0; pos <= text.size(); pos += 1 + text.size() / 16) {
		auto end = static_cast<unsigned int>(pos);
		QUOR_2_9::config::detail::config_file_reader::skip_comment(QUOR_2_9::strings::ustring8(text), end);
		check(end == reference::cfg_reader::comment_end(text, pos), "the end of a comment");
	}
	return 0;
}
