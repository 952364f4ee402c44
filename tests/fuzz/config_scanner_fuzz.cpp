// The scanner of configuration text, assignments and the keys of the tree. Any bytes are an
// input: scanned as they are, read as an assignment, and taken line by line to fill a tree.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "reference/config_node.hpp"
#include "reference/config_sources.hpp"
#include "reference/config_tokens.hpp"
#include "support/config_sources.hpp"
#include "support/open_config_item.hpp"

namespace {

using QUOR_2_9::config::config_token;
using QUOR_2_9::config::config_tree;
using QUOR_2_9::strings::ustring8;
using quor_reference::config_entry;
using quor_reference::config_node;
using quor_reference::config_piece;
using quor_test::entries_of;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

void check_tokens(std::string const &text) {
	quor_test::open_config_item const item;
	config_token token;
	unsigned int pos = 0;
	std::string last;
	for (config_piece const &piece : quor_reference::config_pieces::of(text, 0)) {
		config_token::tok_types const result = item.get_token(text, pos, token);
		last = piece.text.value_or(last);
		check(result != config_token::T_END && token.token_text == last, "a token's text");
		check(token.token_start == piece.begin && token.token_end == piece.end && pos == piece.end, "a token's place");
		check((result == token.token_type) == !piece.is_mark("*/"), "what is returned is the type");
		check((token.token_type == config_token::T_SPACE) == !piece.text.has_value(), "blanks have no text");
		check((token.token_type == config_token::T_STRING) == (piece.kind == "string"), "strings");
		check((token.token_type == config_token::T_EQ) == piece.is_mark("="), "equals signs");
		check(!token.CvtTokStr().empty(), "each kind has a display");
	}
	check(pos >= text.size() && pos <= text.size() + 2, "the whole text is scanned");
	check(item.get_token(text, pos, token) == config_token::T_END, "nothing stands behind it");
}

void check_assignment(std::string const &text) {
	quor_test::open_config_item const item;
	auto const [key, value] = quor_reference::config_assignment(text);
	auto const result = item.make_key_value(text, config_token::T_EQ);
	check(result.first == key && result.second.as_string() == value, "an assignment");
}

// The key in the other case and with other separators.
std::string respelled(std::string key) {
	for (char &unit : key) {
		if (unit >= 'a' && unit <= 'z') {
			unit = static_cast<char>(unit - 'a' + 'A');
		} else if (unit == '.' || unit == '\\') {
			unit = unit == '.' ? '/' : '.';
		}
	}
	return key;
}

void check_node(config_tree const &tree, config_node const &expected, std::string const &key) {
	config_tree::node_value const *const node = tree.get_node(key);
	std::optional<config_entry> const told = expected.get(key);
	check((node != nullptr) == told.has_value(), "a node is there");
	if (node != nullptr) {
		check(entries_of({{"", *node}}).front() == *told, "a node's contents");
	}
	check(tree.get_node(respelled(key)) == node, "case and separators don't matter");
	config_tree::value_pair_array out;
	std::vector<config_entry> lines;
	tree.get_array(key, out);
	expected.array(key, lines);
	tree.get_value_pair_array(key, out, true, "p");
	expected.list(key, lines, true, "p");
	check(entries_of(out) == lines, "a listing");
}

// The first byte of each line tells what is done with the rest of it. Long texts are cut, as
// dumps grow with the square of the depth.
void check_tree(std::string const &text) {
	quor_test::open_config_item item;
	config_node expected;
	std::istringstream lines(text.substr(0, 300));
	std::vector<std::string> keys = {""};
	for (std::string line; std::getline(lines, line) && !line.empty();) {
		std::string const rest = line.substr(1);
		keys.push_back(rest);
		if (line[0] == '0') {
			item.set_array(rest, QUOR_2_9::generic::varg_list(rest, "1"), QUOR_2_9::generic::varg_list());
			expected.set_array(rest, {rest, "1"});
		} else {
			auto const flags = static_cast<unsigned int>(line[0] & 7);
			item.set(rest, rest, flags);
			expected.set(rest, rest, flags);
		}
	}
	config_tree copy(item.item_tree);
	item.item_tree.erase();
	for (std::string const &key : keys) {
		check_node(copy, expected, key);
	}
	std::ostringstream out;
	out << copy;
	check(out.str() == expected.dump(0), "a dump");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	std::string const text(data, data + size);
	check_tokens(text);
	check_assignment(text);
	check_tree(text);
	return 0;
}
