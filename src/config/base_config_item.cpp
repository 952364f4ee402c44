#include <quor/config/base_config_item.hpp>

#include <ostream>

#include <quor/types/nil.hpp>

#include "config/array_elements.hpp"
#include "config/token_scanner.hpp"

namespace QUOR_2_9::config {

using generic::varg_list;
using strings::ustring8;
using types::variant;

namespace {

bool is_dropped(config_token::tok_types type) noexcept {
	return type == config_token::T_SPACE || type == config_token::T_TABCHAR;
}

} // namespace

base_config_item::base_config_item() = default;

base_config_item::base_config_item(base_config_item const &other)
    : clone_ability(), reference_count_pointer_ability(), item_id(other.item_id), item_tree(other.item_tree) {}

base_config_item &base_config_item::operator=(base_config_item const &other) {
	ustring8 id(other.item_id);
	item_tree = other.item_tree;
	item_id.swap(id);
	return *this;
}

base_config_item::~base_config_item() = default;

bool base_config_item::load() {
	return true;
}

bool base_config_item::load(item_list const & /*items*/) {
	return load();
}

bool base_config_item::save() {
	return true;
}

bool base_config_item::save(item_list const & /*items*/) {
	return true;
}

void base_config_item::unload() {}

ustring8 base_config_item::get_id() const {
	return item_id;
}

void base_config_item::set(ustring8 const &key, variant const &value, unsigned int flags) {
	item_tree.set_node(key, value, flags);
}

void base_config_item::set(std::pair<ustring8, variant> const &entry, unsigned int flags) {
	item_tree.set_node(entry.first, entry.second, flags);
}

void base_config_item::set(ustring8 const &assignment, unsigned int flags) {
	set(make_key_value(assignment, config_token::T_EQ), flags);
}

void base_config_item::set_array(ustring8 const &key, varg_list const &values, varg_list const &flags) {
	item_tree.set_node(key, types::nil, config_tree::flag_array);
	detail::set_elements(item_tree, key, values, flags);
}

config_tree::node_value const *base_config_item::get_value(ustring8 const &key) const {
	return item_tree.get_node(key);
}

void base_config_item::get_array(ustring8 const &key, config_tree::value_pair_array &out) const {
	item_tree.get_array(key, out);
}

void base_config_item::get_value_pair_array(ustring8 const &key, config_tree::value_pair_array &out,
                                            bool recursive) const {
	item_tree.get_value_pair_array(key, out, recursive, ustring8());
}

std::pair<ustring8, variant> base_config_item::make_key_value(ustring8 const &line,
                                                              config_token::tok_types stop) const {
	unsigned int pos = 0;
	ustring8 key;
	while (true) {
		detail::scanned_token const token = detail::scan_token(line, pos);
		if (token.type == config_token::T_END || token.type == stop) {
			break;
		}
		if (token.type != config_token::T_NEWLINE && !is_dropped(token.type)) {
			key.append(token.text);
		}
	}
	ustring8 value;
	while (true) {
		detail::scanned_token const token = detail::scan_token(line, pos);
		if (token.type == config_token::T_END || token.type == config_token::T_NEWLINE) {
			break;
		}
		if (!is_dropped(token.type)) {
			value.append(token.text);
		}
	}
	return {std::move(key), variant(value)};
}

config_token::tok_types base_config_item::get_token(ustring8 const &text, unsigned int &pos,
                                                    config_token &token) const {
	unsigned int const start = pos;
	detail::scanned_token const found = detail::scan_token(text, pos);
	token.token_type = found.type;
	if (found.type == config_token::T_END) {
		return config_token::T_END;
	}
	token.token_start = start;
	token.token_end = pos;
	if (found.has_text()) {
		token.token_text.assign(found.text);
	}
	return found.type == config_token::T_COMMENT_CLOSE ? config_token::T_FSFS : found.type;
}

void base_config_item::dump(std::ostream &os) const {
	ustring8 const head = "object : " + item_id + "\n|---------------\\\n";
	os.write(head.data(), static_cast<std::streamsize>(head.size()));
	item_tree.dump(os, 1);
	os.write("end\n", 4);
}

std::ostream &operator<<(std::ostream &os, base_config_item const &item) {
	item.dump(os);
	return os;
}

} // namespace QUOR_2_9::config
