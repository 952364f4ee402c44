#include "config/array_elements.hpp"

#include <quor/types/variant.hpp>
#include <quor/types/widths.hpp>

#include "config/decimal_name.hpp"
#include "config/key_path.hpp"

namespace QUOR_2_9::config::detail {

using generic::varg_list;
using strings::ustring8;
using types::variant;

namespace {

/// Flags word and value of an array's element: with a list of flags, elements that it has
/// no entry for are numbers.
config_tree::node_value element_of(varg_list const &values, varg_list const &flags, types::uint32 index) {
	variant const &value = values[index].value();
	if (flags.empty()) {
		return {0U, value};
	}
	if (index < flags.count()) {
		return {static_cast<unsigned int>(flags[index].value().as_uint32()), value};
	}
	return {0U, variant(types::ulong_t(value.as_uint32()))};
}

} // namespace

void set_elements(config_tree &tree, ustring8 const &key, varg_list const &values, varg_list const &flags) {
	if (values.empty()) {
		return;
	}
	// The first element makes the node that all of them lie in: for keys that end in a
	// separator it is another one than the head.
	ustring8 const parent_key = key + ".";
	config_tree::node_value const first = element_of(values, flags, 0);
	tree.set_node(parent_key + "0", first.second, first.first);
	config_tree &parent = *find_node(tree, parent_key);
	for (types::uint32 i = 1; i != values.count(); ++i) {
		config_tree::node_value const element = element_of(values, flags, i);
		parent.set_node(ustring8(decimal_name(static_cast<unsigned int>(i)).text()), element.second, element.first);
	}
}

} // namespace QUOR_2_9::config::detail
