#ifndef QUOR_SRC_I18N_ITEM_TYPE_WORD_HPP
#define QUOR_SRC_I18N_ITEM_TYPE_WORD_HPP

#include <string_view>

#include <quor/i18n/message_item.hpp>

namespace QUOR_2_9::i18n::detail {

/// What a catalog file's word for a type stands for, in any case of ASCII letters; text where it
/// stands for none.
message_item::type_t type_of_word(std::string_view word) noexcept;

} // namespace QUOR_2_9::i18n::detail

#endif
