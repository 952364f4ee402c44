// The command line and the environment against their slow reading. An input is cut at its
// zero bytes into strings: all of them are a command line, with the first one as the
// program, and all of them are an environment.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <quor/config/commandline_item.hpp>
#include <quor/config/enviroment_item.hpp>

#include "reference/config_sources.hpp"
#include "support/config_sources.hpp"
#include "support/cout_capture.hpp"

namespace {

namespace quor = QUOR_2_9;
using entries = std::vector<quor_test::config_entry>;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

// Where the program's path is cut depends on the system.
bool slashes_separate() {
	quor_test::string_block block({"a/b"});
	quor::config::commandline_item item(block.count(), block.pointers());
	item.load();
	return item.get_value("application.name")->second.as_utf8() == "b";
}

entries listing_of(quor_reference::config_node const &tree) {
	entries result;
	tree.list(result);
	return result;
}

void check_copies(quor::config::base_config_item const &item, entries const &expected) {
	quor::memory::pointers::rc_pointer<quor::config::base_config_item> const copy(item.clone());
	check(quor_test::listing_of(*copy) == expected, "a clone has the same tree");
	copy->unload();
	check(quor_test::listing_of(*copy).empty(), "unload empties");
}

void run_command_line(std::vector<std::string> const &texts) {
	static bool const slashes = slashes_separate();
	quor_test::string_block block(texts);
	quor::config::commandline_item item(block.count(), block.pointers());
	quor_reference::config_node tree;
	quor_reference::config_command_line reading(texts, slashes);
	for (int time = 0; time != 2; ++time) {
		quor_test::cout_capture const capture;
		check(item.load(), "load is true");
		check(capture.text() == reading.load(tree), "the warnings are the reference's");
		check(quor_test::listing_of(item) == listing_of(tree), "the tree is the reference's");
	}
	check_copies(item, listing_of(tree));
}

void run_environment(std::vector<std::string> const &texts) {
	quor_test::string_block block(texts);
	quor::config::enviroment_item item(block.pointers());
	quor_reference::config_node tree;
	quor_reference::load_environment(tree, texts);
	quor_test::cout_capture const capture;
	check(item.load(), "load is true");
	check(capture.text().empty(), "an environment is not warned of");
	check(quor_test::listing_of(item) == listing_of(tree), "the tree is the reference's");
	check_copies(item, listing_of(tree));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	// The reference goes down and up its tree one component at a time.
	constexpr std::size_t enough = 1024;
	std::vector<std::string> texts(1);
	for (std::size_t i = 0; i != size && i != enough; ++i) {
		if (data[i] == 0) {
			texts.emplace_back();
		} else {
			texts.back() += static_cast<char>(data[i]);
		}
	}
	run_command_line(texts);
	run_environment(texts);
	return 0;
}
