// Rendering of messages against its slow reference. An input is lines: "name=text" makes
// an argument, "Xdata" an item whose type is the letter behind "a" ("a" is literal text,
// "b" a string and so on); in it "|" stands for the byte 0x01 too.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <quor/i18n/message.hpp>
#include <quor/strings/transcode.hpp>

#include "reference/rendering.hpp"
#include "support/debug_capture.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::i18n::message_item;
using quor::strings::ustring8;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

void read_line(std::string const &line, std::vector<message_item> &items, quor::generic::varg_list &args) {
	std::size_t const equals = line.find('=');
	if (equals != std::string::npos) {
		std::string const text = line.substr(equals + 1);
		// Numbers go in as numbers where the text is marked so.
		if (text[0] == '#') {
			args.push_back(ustring8(line.substr(0, equals)), quor::types::variant(text.substr(1)).as_double());
		} else {
			args.push_back(ustring8(line.substr(0, equals)), ustring8(text));
		}
	} else if (!line.empty()) {
		std::string data = line.substr(1);
		for (char &unit : data) {
			unit = unit == '|' ? '\x01' : unit;
		}
		int const type = (static_cast<unsigned char>(line[0]) - 'a' + 120) % 12;
		items.emplace_back(ustring8(data), static_cast<message_item::type_t>(type));
	}
}

void check_wide(quor::i18n::message_t const &message, quor::generic::varg_list const &args, ustring8 const &text) {
	check(message.as_utf8(args) == text, "as_utf8");
	check(message.as_utf16(args) == quor::strings::utf8_to_utf16(text), "as_utf16");
	check(message.as_wstring(args) == message.as_utf16(args), "as_wstring");
	check(message.as_ustring(args) == message.as_utf16(args), "as_ustring");
	bool thrown = false;
	quor::strings::ustring32 expected;
	try {
		expected = quor::strings::utf8_to_utf32(text);
	} catch (std::length_error const &) {
		thrown = true;
	}
	try {
		check(message.as_utf32(args) == expected && !thrown, "as_utf32");
	} catch (std::length_error const &) {
		check(thrown, "as_utf32 throws what the transcoder throws");
	}
}

void check_names(quor::i18n::message_t const &message, quor::generic::varg_list const &args) {
	quor::generic::varg_list const arguments = message.arguments();
	check(arguments.size() == message.argument_count(), "arguments");
	bool valid = message.size() != 0 && message.argument_count() <= args.count();
	for (message_item const &item : message) {
		valid = valid && (item.type() == message_item::type_value || args.has_argument(item.data()));
	}
	check(message.has_valid_args(args) == valid, "has_valid_args");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	std::vector<message_item> items;
	quor::generic::varg_list args;
	std::string line;
	for (std::size_t i = 0; i != size && i < 65536; ++i) {
		if (data[i] == '\n') {
			read_line(line, items, args);
			line.clear();
		} else {
			line += static_cast<char>(data[i]);
		}
	}
	read_line(line, items, args);

	quor::i18n::message_t const message(items);
	reference::strings_t debug;
	std::string const expected = reference::render(message, args, debug);
	quor_test::debug_capture const capture;
	check(message.as_string(args) == expected, "as_string");
	check(capture.calls() == debug, "debug output");
	check_wide(message, args, expected);
	check_names(message, args);
	return 0;
}
