#ifndef QUOR_SRC_I18N_ITEM_TEXT_HPP
#define QUOR_SRC_I18N_ITEM_TEXT_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message_item.hpp>

#include "i18n/text_writer.hpp"

namespace QUOR_2_9::i18n::detail {

/// Finds arguments by name, the first of each name, as the list does it. Where a long
/// list is asked often it builds an index, so that the whole stays linear; short lists
/// cost no memory. The list must outlive it and stay unchanged.
class argument_finder {
public:
	/// @param lookups how many times the finder will be asked, at most.
	argument_finder(generic::varg_list const &args, std::size_t lookups);

	/// The argument or null.
	generic::argument const *find(std::string_view name) const;

private:
	generic::argument const *m_first;
	std::size_t m_count;
	std::unordered_map<std::string_view, generic::argument const *> m_index;
};

/// What stands in the text in place of an item that can't be rendered.
inline constexpr std::string_view invalid_text = "?invalid?";

/// Appends the rendering of one item, of whose data the first `name_size` characters are the
/// argument's name, and reports to the debug channel when it reads "?invalid?".
void append_item(text_writer &out, message_item::type_t type, std::string_view data, std::size_t name_size,
                 argument_finder const &args);

} // namespace QUOR_2_9::i18n::detail

#endif
