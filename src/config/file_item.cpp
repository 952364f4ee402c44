#include <quor/config/file_item.hpp>

#include <cstdint>
#include <optional>
#include <vector>

#include <quor/generic/abilities/alloc_detection_ability.hpp>
#include <quor/system/file.hpp>

#include "config/config_file_reader.hpp"
#include "config/config_file_writer.hpp"
#include "config/token_scanner.hpp"
#include "system/readable_size.hpp"

namespace QUOR_2_9::config {
namespace {

using strings::ustring8;

constexpr char const *item_name = "standard file";

/// The first file that opens among those that the items name under a key; empty if none.
ustring8 first_that_opens(base_config_item::item_list const &items, char const *key, char const *suffix) {
	for (auto const &item : items) {
		auto const *const found = item ? item->get_value(key) : nullptr;
		if (found != nullptr) {
			ustring8 path = found->second.as_string() + suffix;
			if (system::detail::readable_size(path)) {
				return path;
			}
		}
	}
	return {};
}

} // namespace

file_item::file_item(ustring8 const &name) : file_name(name) {
	item_id = item_name;
}

file_item::file_item(file_item const &other) : base_config_item(other), file_name(other.file_name) {
	item_id = item_name;
}

file_item &file_item::operator=(file_item const &other) {
	ustring8 name(other.file_name);
	base_config_item::operator=(other);
	file_name.swap(name);
	return *this;
}

file_item::~file_item() = default;

ustring8 file_item::get_filename() const {
	return file_name;
}

bool file_item::load() {
	load_file();
	return true;
}

bool file_item::load(item_list const &items) {
	// No file opens under the empty path.
	ustring8 path = first_that_opens(items, "cfg_file", "");
	if (path.empty() && file_name.empty()) {
		path = first_that_opens(items, "application.name.raw", ".cfg");
	}
	if (!path.empty()) {
		file_name = path;
	}
	load_file();
	return true;
}

bool file_item::save() {
	std::vector<detail::listed_node> entries;
	item_tree.get_value_pair_array("", entries, true, "");
	system::store_file(file_name, detail::config_file_text(entries));
	return true;
}

bool file_item::save(item_list const & /*items*/) {
	return true;
}

void file_item::unload() {
	item_tree.erase();
}

file_item *file_item::clone() const {
	return generic::abilities::create_dynamic<file_item>(*this);
}

void file_item::load_file() {
	if (file_name.empty()) {
		return;
	}
	// The size is looked at first, so that a file that is too long takes no memory.
	auto const size = system::detail::readable_size(file_name);
	ustring8 text;
	if (size && *size >= 0 && *size < std::int64_t(detail::too_long_to_scan) &&
	    system::load_file(file_name, text) == 0) {
		detail::config_file_reader(text, item_tree).read();
	}
}

void file_item::parse_comment(ustring8 const &text, unsigned int &pos) const {
	detail::config_file_reader::skip_comment(text, pos);
}

} // namespace QUOR_2_9::config
