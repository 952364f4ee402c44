#ifndef QUOR_SRC_CONFIG_ITEM_ACCESS_HPP
#define QUOR_SRC_CONFIG_ITEM_ACCESS_HPP

#include <quor/config/base_config_item.hpp>

namespace QUOR_2_9::config::detail {

/// Lets the library's own look-ups walk the tree of an item.
struct item_access {
	static config_tree const &tree(base_config_item const &item) noexcept { return item.item_tree; }
};

} // namespace QUOR_2_9::config::detail

#endif
