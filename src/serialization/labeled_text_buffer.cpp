#include <quor/serialization/labeled_text_buffer.hpp>

#include <utility>

#include <quor/generic/abilities/alloc_detection_ability.hpp>

#include "serialization/labeled_record.hpp"

namespace QUOR_2_9::serialization {

using detail::label_entry;
using detail::labeled_record;

labeled_text_buffer::labeled_text_buffer() = default;

labeled_text_buffer::labeled_text_buffer(labeled_text_buffer const &other)
    : labeled_serialize_buffer(other), entries(labeled_record::copy(other)) {}

labeled_text_buffer::labeled_text_buffer(std::string const &text) {
	labeled_record::parse(text, *this);
}

labeled_text_buffer::~labeled_text_buffer() {
	if (entries) {
		labeled_record::release(std::move(entries));
	}
}

labeled_text_buffer &labeled_text_buffer::operator=(labeled_text_buffer const &other) {
	return assign(other);
}

labeled_serialize_buffer &labeled_text_buffer::assign(char const *data, int length) {
	return assign(data != nullptr && length > 0 ? std::string(data, static_cast<std::size_t>(length)) : std::string());
}

labeled_serialize_buffer &labeled_text_buffer::assign(std::string const &text) {
	labeled_text_buffer read(text);
	labeled_record::replace(*this, std::move(read.entries));
	return *this;
}

labeled_serialize_buffer &labeled_text_buffer::assign(labeled_serialize_buffer const &other) {
	return this != &other ? assign(other.as_str()) : *this;
}

labeled_text_buffer &labeled_text_buffer::assign(labeled_text_buffer const &other) {
	if (this != &other) {
		labeled_record::replace(*this, labeled_record::copy(other));
	}
	return *this;
}

void labeled_text_buffer::overlay(labeled_text_buffer const &other) {
	labeled_record::overlay(labeled_record::copy(other), *this);
}

std::string const &labeled_text_buffer::as_str() const {
	return labeled_record::render(*this);
}

labeled_serialize_buffer::result_type labeled_text_buffer::add_value(std::string const &label,
                                                                     types::variant const &value) {
	return labeled_record::store_value(*this, label, value) ? value_replaced : value_stored;
}

labeled_serialize_buffer *labeled_text_buffer::create_group(std::string const &label) {
	return &labeled_record::store_group(*this, label);
}

bool labeled_text_buffer::has_label(std::string const &label) const {
	return labeled_record::find(*this, label) != nullptr;
}

bool labeled_text_buffer::has_value(std::string const &label) const {
	label_entry const *const entry = labeled_record::find(*this, label);
	return entry != nullptr && entry->value != types::nil;
}

bool labeled_text_buffer::has_group(std::string const &label) const {
	label_entry const *const entry = labeled_record::find(*this, label);
	labeled_text_buffer const *const group = entry != nullptr ? entry->group_if_any() : nullptr;
	return group != nullptr && !group->is_empty();
}

bool labeled_text_buffer::is_empty() const {
	return !entries || entries->map.empty();
}

types::variant labeled_text_buffer::retrieve_value(std::string const &label) const {
	label_entry const *const entry = labeled_record::find(*this, label);
	return entry != nullptr ? entry->value : types::variant();
}

labeled_serialize_buffer *labeled_text_buffer::retrieve_group(std::string const &label) {
	label_entry *const entry = labeled_record::find(*this, label);
	return entry != nullptr ? &entry->group() : nullptr;
}

labeled_serialize_buffer const *labeled_text_buffer::retrieve_group(std::string const &label) const {
	label_entry *const entry = labeled_record::find(*this, label);
	return entry != nullptr ? &entry->group() : nullptr;
}

labeled_text_buffer *labeled_text_buffer::create() const {
	return generic::abilities::create_dynamic<labeled_text_buffer>();
}

labeled_text_buffer *labeled_text_buffer::clone() const {
	return generic::abilities::create_dynamic<labeled_text_buffer>(*this);
}

} // namespace QUOR_2_9::serialization
