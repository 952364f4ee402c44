#ifndef QUOR_TESTS_SUPPORT_CONFIG_LISTING_HPP
#define QUOR_TESTS_SUPPORT_CONFIG_LISTING_HPP

// All nodes of a configuration tree as one text that a test can compare, in the order of
// the tree: name, flags word and value.
//
//     s:0= s.k:1=value

#include <string>

#include <quor/config/base_config_item.hpp>
#include <quor/config/config_tree.hpp>

namespace quor_test {

inline std::string listing_text(QUOR_2_9::config::config_tree::value_pair_array const &listing) {
	std::string text;
	for (auto const &[name, node] : listing) {
		text.append(text.empty() ? "" : " ").append(name).append(":").append(std::to_string(node.first));
		text.append("=").append(node.second.as_utf8());
	}
	return text;
}

inline std::string listing_text(QUOR_2_9::config::config_tree const &tree) {
	QUOR_2_9::config::config_tree::value_pair_array listing;
	tree.get_value_pair_array("", listing, true, "");
	return listing_text(listing);
}

inline std::string listing_text(QUOR_2_9::config::base_config_item const &item) {
	QUOR_2_9::config::config_tree::value_pair_array listing;
	item.get_value_pair_array("", listing, true);
	return listing_text(listing);
}

} // namespace quor_test

#endif
