#include <quor/config/commandline_item.hpp>

#include <algorithm>
#include <cstddef>

#include <quor/strings/split_string.hpp>

#include "config/argument_reader.hpp"
#include "platform/program_path.hpp"

namespace QUOR_2_9::config {

using strings::ustring8;

namespace {

/// Stores the name of the program, whole and in parts.
void store_program_name(base_config_item &item, char const *program) {
	ustring8 path(program);
	if (platform::slash_separates_program_path()) {
		std::replace(path.begin(), path.end(), '/', '\\');
	}
	auto const directories = strings::split_string(path, "\\");
	ustring8 const name = directories.empty() ? ustring8() : directories.back();
	item.set("application.name", name, 0);
	auto const parts = strings::split_string(name, ".");
	if (parts.size() > 1) {
		item.set("application.name.extention", parts.back(), 0);
	}
	ustring8 raw;
	for (std::size_t i = 1; i < parts.size(); ++i) {
		raw += parts[i - 1];
	}
	item.set("application.name.raw", raw, 0);
}

} // namespace

commandline_item::commandline_item(unsigned int argc, char const *const *argv) : m_argc(argc), m_argv(argv) {
	item_id = "command line";
}

commandline_item::commandline_item(commandline_item const &other)
    : base_config_item(other), m_argc(other.m_argc), m_argv(other.m_argv) {
	item_id = "command line";
}

commandline_item::~commandline_item() = default;

commandline_item &commandline_item::operator=(commandline_item const &other) = default;

bool commandline_item::load() {
	if (m_argv != nullptr && m_argv[0] != nullptr) {
		store_program_name(*this, m_argv[0]);
		detail::argument_reader(*this, get_argc(), m_argv).read();
	}
	return true;
}

void commandline_item::unload() {
	item_tree.erase();
}

commandline_item *commandline_item::clone() const {
	return generic::abilities::create_dynamic<commandline_item>(*this);
}

int commandline_item::get_argc() const noexcept {
	return static_cast<int>(m_argc);
}

char const *const *commandline_item::get_argv() const noexcept {
	return m_argv;
}

} // namespace QUOR_2_9::config
