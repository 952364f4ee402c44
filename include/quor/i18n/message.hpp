#ifndef QUOR_I18N_MESSAGE_HPP
#define QUOR_I18N_MESSAGE_HPP

/// @file
/// A message: a small compiled template of literal text and typed, named arguments,
/// as it stands in a catalog. Rendering takes a list of named values and gives UTF-8,
/// UTF-16, UTF-32 or wide text; what can't be rendered shows as "?invalid?" and the
/// rest of the message is still produced.
///
///     quor::generic::varg_list args;
///     args.push_back("n", 2048);
///     std::cout << catalogs.message("app", "used").as_string(args);   // Used 2 KB
///
/// @since 2.9

#include <string>
#include <vector>

#include <quor/export.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message_item.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::i18n {

namespace detail {
class message_maker;
} // namespace detail

/// An ordered list of pieces with a name, a free text and the language it was found in.
///
/// The nil message has no items, no name and no meta text; the language plays no part
/// in that. A value: copies are deep; a moved-from message may only be assigned or
/// destroyed. Thread-safety: many readers or one writer; rendering only reads.
/// @since 2.9
class QUOR_API message_t {
public:
	/// Walks the items and may change them.
	using iterator = std::vector<message_item>::iterator;
	/// Walks the items.
	using const_iterator = std::vector<message_item>::const_iterator;

	/// The nil message.
	/// @since 2.9
	message_t();

	/// The nil message.
	/// @since 2.9
	message_t(types::nil_t const &);

	/// A message without a name.
	/// @since 2.9
	message_t(std::vector<message_item> const &items);

	/// A message with its name in the catalog.
	/// @since 2.9
	message_t(strings::ustring8 const &name, std::vector<message_item> const &items);

	/// A message with its name in the catalog and its meta text, which is never interpreted.
	/// @since 2.9
	message_t(strings::ustring8 const &name, std::vector<message_item> const &items, strings::ustring8 const &meta);

	/// Takes all four fields of another message; the message itself is left as it is.
	/// @since 2.9
	message_t &assign(message_t const &other);

	/// Removes all items and empties the name and the meta text. The language stays.
	/// @since 2.9
	message_t &assign(types::nil_t const &);

	/// The same as `assign(nil)`.
	/// @since 2.9
	message_t &operator=(types::nil_t const &);

	/// Whether this is the nil message: no items, no name, no meta text.
	/// @since 2.9
	bool equal(types::nil_t const &) const noexcept;

	/// The same as `equal`.
	/// @since 2.9
	bool operator==(types::nil_t const &) const noexcept;

	/// The opposite of `equal`.
	/// @since 2.9
	bool operator!=(types::nil_t const &) const noexcept;

	/// The message's key in its catalog.
	/// @since 2.9
	strings::ustring8 const &name() const noexcept { return m_name; }

	/// Sets the key and returns it.
	/// @since 2.9
	strings::ustring8 const &name(strings::ustring8 const &value);

	/// Free text that goes with the message; never interpreted.
	/// @since 2.9
	strings::ustring8 const &meta() const noexcept { return m_meta; }

	/// Sets the free text and returns it.
	/// @since 2.9
	strings::ustring8 const &meta(strings::ustring8 const &value);

	/// The language id under which the message was found, as it stands in its file.
	/// @since 2.9
	strings::ustring8 const &_orginal_locale() const noexcept { return m_orginal_locale; }

	/// Sets the language id and returns it.
	/// @since 2.9
	strings::ustring8 const &_orginal_locale(strings::ustring8 const &value);

	/// The number of items.
	/// @since 2.9
	types::uint32 count() const noexcept;

	/// The number of items.
	/// @since 2.9
	types::uint32 size() const noexcept;

	/// The first item.
	/// @since 2.9
	iterator begin() noexcept { return m_items.begin(); }

	/// Behind the last item.
	/// @since 2.9
	iterator end() noexcept { return m_items.end(); }

	/// The first item.
	/// @since 2.9
	const_iterator begin() const noexcept { return m_items.begin(); }

	/// Behind the last item.
	/// @since 2.9
	const_iterator end() const noexcept { return m_items.end(); }

	/// The number of items that are not literal text. An argument used twice counts twice.
	/// Cost: linear in the items.
	/// @since 2.9
	types::uint32 argument_count() const noexcept;

	/// One argument with a nil value for each item that is not literal text, in order.
	///
	/// Note: the name is the item's whole field string, format attributes included, and
	/// two items with equal field strings give two arguments of one name.
	/// Cost: linear in the items.
	/// @since 2.9
	generic::varg_list arguments() const;

	/// Whether the list has an argument for every item, by the item's whole field string.
	///
	/// False for a message without items, and where the list holds fewer arguments than
	/// `argument_count()`. Note: an item with format attributes (`"n\1base\1hex"`) never
	/// finds its argument here, although rendering does; so this answers for messages
	/// whose arguments have no attributes.
	/// Cost: linear in the items and the arguments.
	/// @since 2.9
	bool has_valid_args(generic::varg_list const &args) const;

	/// Renders the message as UTF-8: all its items in order, with nothing between them.
	///
	/// Missing arguments and refused attributes show as "?invalid?" in their place (see
	/// `message_item::as_string`); arguments that no item names are ignored. A message
	/// without items gives the empty text.
	/// @throws what the conversions of `variant` to text throw, and what the handler of
	///         the debug channel throws.
	/// Untrusted input: safe for any items. Cost: linear in the items, the arguments and
	/// the result; allocates for the result, for each long text of a string item, for each
	/// report to the debug channel and, where many items meet many arguments, for an index
	/// of the arguments. Literal items allocate nothing.
	/// @since 2.9
	std::string as_string(generic::varg_list const &args) const;

	/// The text of `as_string` in its class.
	/// @since 2.9
	strings::ustring8 as_utf8(generic::varg_list const &args) const;

	/// The text of `as_string` through `strings::utf8_to_utf16`: "-1" where it is malformed.
	/// @since 2.9
	strings::ustring16 as_utf16(generic::varg_list const &args) const;

	/// The text of `as_string` through `strings::utf8_to_utf32`.
	/// @throws std::length_error where the text is malformed behind its start.
	/// @since 2.9
	strings::ustring32 as_utf32(generic::varg_list const &args) const;

	/// The text of `as_utf16`, unit by unit.
	/// @since 2.9
	types::wide_string as_wstring(generic::varg_list const &args) const;

	/// The same as `as_wstring`.
	/// @since 2.9
	types::wide_string as_ustring(generic::varg_list const &args) const;

private:
	friend class detail::message_maker;

	std::vector<message_item> m_items;
	strings::ustring8 m_orginal_locale;
	strings::ustring8 m_name;
	strings::ustring8 m_meta;
};

} // namespace QUOR_2_9::i18n

#endif
