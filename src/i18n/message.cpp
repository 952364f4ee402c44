#include <quor/i18n/message.hpp>

#include <algorithm>
#include <utility>

#include <quor/strings/transcode.hpp>

#include "i18n/item_text.hpp"

namespace QUOR_2_9::i18n {
namespace {

/// Room for the text of an argument when the result's memory is taken.
constexpr std::size_t usual_argument = 16;

bool is_argument(message_item const &item) noexcept {
	return item.type() != message_item::type_value;
}

} // namespace

message_t::message_t() = default;

message_t::message_t(types::nil_t const & /*nil*/) {}

message_t::message_t(std::vector<message_item> const &items) : m_items(items) {}

message_t::message_t(strings::ustring8 const &name, std::vector<message_item> const &items)
    : m_items(items), m_name(name) {}

message_t::message_t(strings::ustring8 const &name, std::vector<message_item> const &items,
                     strings::ustring8 const &meta)
    : m_items(items), m_name(name), m_meta(meta) {}

message_t &message_t::assign(message_t const &other) {
	return *this = other;
}

message_t &message_t::assign(types::nil_t const & /*nil*/) {
	m_items.clear();
	m_name.clear();
	m_meta.clear();
	return *this;
}

message_t &message_t::operator=(types::nil_t const &nil) {
	return assign(nil);
}

bool message_t::equal(types::nil_t const & /*nil*/) const noexcept {
	return m_items.empty() && m_name.empty() && m_meta.empty();
}

bool message_t::operator==(types::nil_t const &nil) const noexcept {
	return equal(nil);
}

bool message_t::operator!=(types::nil_t const &nil) const noexcept {
	return !equal(nil);
}

strings::ustring8 const &message_t::name(strings::ustring8 const &value) {
	return m_name = value;
}

strings::ustring8 const &message_t::meta(strings::ustring8 const &value) {
	return m_meta = value;
}

strings::ustring8 const &message_t::_orginal_locale(strings::ustring8 const &value) {
	return m_orginal_locale = value;
}

types::uint32 message_t::count() const noexcept {
	return static_cast<types::uint32>(m_items.size());
}

types::uint32 message_t::size() const noexcept {
	return count();
}

types::uint32 message_t::argument_count() const noexcept {
	return static_cast<types::uint32>(std::count_if(begin(), end(), is_argument));
}

generic::varg_list message_t::arguments() const {
	generic::varg_list result;
	for (message_item const &item : m_items) {
		if (is_argument(item)) {
			// Named only inside the list, which takes one argument of a name otherwise.
			result.push_back(generic::argument());
			(result.end() - 1)->name(item.m_data);
		}
	}
	return result;
}

bool message_t::has_valid_args(generic::varg_list const &args) const {
	std::size_t const wanted = argument_count();
	if (m_items.empty() || wanted > args.count()) {
		return false;
	}
	detail::argument_finder const finder(args, wanted);
	return std::all_of(begin(), end(), [&](message_item const &item) {
		return !is_argument(item) || finder.find(item.m_data) != nullptr;
	});
}

std::string message_t::as_string(generic::varg_list const &args) const {
	std::size_t size = 0;
	std::size_t arguments = 0;
	for (message_item const &item : m_items) {
		size += is_argument(item) ? usual_argument : item.m_data.size();
		arguments += is_argument(item) ? 1 : 0;
	}
	detail::argument_finder const finder(args, arguments);
	detail::text_writer out(size);
	for (message_item const &item : m_items) {
		// A text that reads as the mark of a failure is reported as one.
		if (!is_argument(item) && item.m_data.size() != detail::invalid_text.size()) {
			out.append(item.m_data);
		} else {
			detail::append_item(out, item.m_type, item.m_data, item.name_size(), finder);
		}
	}
	return out.take();
}

strings::ustring8 message_t::as_utf8(generic::varg_list const &args) const {
	return as_string(args);
}

strings::ustring16 message_t::as_utf16(generic::varg_list const &args) const {
	return strings::utf8_to_utf16(as_utf8(args));
}

strings::ustring32 message_t::as_utf32(generic::varg_list const &args) const {
	return strings::utf8_to_utf32(as_utf8(args));
}

types::wide_string message_t::as_wstring(generic::varg_list const &args) const {
	return as_utf16(args);
}

types::wide_string message_t::as_ustring(generic::varg_list const &args) const {
	return as_wstring(args);
}

} // namespace QUOR_2_9::i18n
