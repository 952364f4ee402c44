#ifndef QUOR_SRC_CONFIG_ARRAY_ELEMENTS_HPP
#define QUOR_SRC_CONFIG_ARRAY_ELEMENTS_HPP

#include <quor/config/config_tree.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::config::detail {

/// Stores the elements of an array below `key`, as `base_config_item::set_array` tells; its
/// head is the caller's.
void set_elements(config_tree &tree, strings::ustring8 const &key, generic::varg_list const &values,
                  generic::varg_list const &flags);

} // namespace QUOR_2_9::config::detail

#endif
