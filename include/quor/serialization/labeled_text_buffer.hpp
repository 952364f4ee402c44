#ifndef QUOR_SERIALIZATION_LABELED_TEXT_BUFFER_HPP
#define QUOR_SERIALIZATION_LABELED_TEXT_BUFFER_HPP

/// @file
/// A record of labels with values and nested groups, and its text. Data that must be read by
/// other versions of a program goes here, since a reader asks by label and doesn't mind what
/// it doesn't know. What is only written and read back in one order is smaller and faster in
/// a `serialize_binary_buf` or a `serialize_text_buf`.
///
///     quor::serialization::labeled_text_buffer record;
///     record.add_value("name", "Ada");
///     record.create_group("born")->add_value("year", 1815);
///     std::string const text = record.as_str();
///
///     quor::serialization::labeled_text_buffer const read(text);
///     read.retrieve_value("name").as_string();                           // "Ada"
///     read.retrieve_group("born")->retrieve_value("year").as_int();      // 1815
///
/// @since 2.9

#include <cstddef>
#include <memory>
#include <string>

#include <quor/export.hpp>
#include <quor/serialization/labeled_serialize_buffer.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::serialization {

namespace detail {
struct label_entries;
struct labeled_record;
} // namespace detail

/// A record whose labels each have a value, a nested group, or both, in the order of the
/// labels' bytes from 0 to 255.
///
/// *Labels.* `add_value` and `create_group` strip blanks, tabs, carriage returns and line feeds
/// from both ends of a label; nothing else, so that a vertical tab stays. What only looks a
/// label up takes it as it is given: what was stored under `" a "` is found under `"a"` alone.
/// A label may hold any other byte, zero too.
///
/// *Values.* A value that is nil counts as no value, in all but its place in the text.
///
/// *Groups.* Every label has a group, which is a record itself and empty until something is
/// added to it. Records own their groups: a group's address is valid until its record is
/// assigned to, `create_group` empties a group that it lies in, or its record goes. Groups are
/// never deleted by a pointer that counts.
///
/// *Text.* `as_str` writes pairs of strings, each with its length in decimal, the byte 0x01,
/// its bytes, and the byte 0x01 again. A pair is a label and its value as text, or a label
/// with one blank added and its group's own text:
///
///     1SaS1S1S2Sg S8S1SbS1S2SS        with S for the byte 0x01: a is 1, b in the group g is 2
///
/// A label with a value and a group that isn't empty gives two pairs, the value's first. One
/// with neither gives a pair with empty text, and so has a value when it is read back. Values
/// come back as `std::string`, whatever they were. An empty label is written as all others are,
/// but ends the reading unless it has a group alone: the text from there on is not read.
///
/// A value that can also be counted: `rc_pointer` shares it. Copies are deep and carry count
/// and mark of their source; assignment leaves the target's own. Records of any nesting can be
/// built, written, copied, merged and destroyed: no operation uses the call stack for the
/// depth of groups, and each is linear in what it reads and writes, times the logarithm of
/// the number of labels side by side.
///
/// Untrusted input: any text is safe to read, see `assign`. Thread-safety: none; also `as_str`
/// of a constant record changes it.
/// @since 2.9
class QUOR_API labeled_text_buffer : public labeled_serialize_buffer {
public:
	/// How deep the groups of a text may be nested: deeper ones are there, but empty. @since 2.9
	static constexpr std::size_t nesting_limit = 1000;

	/// A record without labels. @since 2.9
	labeled_text_buffer();
	/// A deep copy with the count and the mark of `other`. @since 2.9
	labeled_text_buffer(labeled_text_buffer const &other);
	/// The record that `assign` reads from a text. @since 2.9
	labeled_text_buffer(std::string const &text);
	/// Destroys the record and its groups. @since 2.9
	~labeled_text_buffer() override;

	/// The same as `assign(other)`. @since 2.9
	labeled_text_buffer &operator=(labeled_text_buffer const &other);
	using labeled_serialize_buffer::operator=;

	/// Replaces the record by the one that is read from `length` bytes; from none if `data` is
	/// null or `length` negative. @since 2.9
	labeled_serialize_buffer &assign(char const *data, int length) override;

	/// Replaces the record by the one that is read from a text.
	///
	/// Pairs are read until the text ends. Nothing is reported: damage gives fewer or shorter
	/// entries, by these rules.
	///
	/// - A length is read as `str_to_int32` does, with the radix found from the text, so
	///   that `0x10` is 16, what is no number 0, and no string longer than 2^31 - 1 bytes.
	///   The byte behind a string is skipped, whatever it is.
	/// - An empty key ends the reading.
	/// - What ends too early gives what is there: a string cut by the end is short, a key
	///   without a value behind it has the empty text, a length without 0x01 behind it is no
	///   string.
	/// - A negative length stands for all bytes up to the end, and the reading ends there.
	/// - A key that ends in a blank is a group; it replaces an earlier group of the same label.
	///   Any other is a value, and replaces an earlier one. Labels are stripped as always.
	/// - The text of a group is read by the same rules, and its end is that of its text. Groups
	///   that lie deeper than `nesting_limit` stay empty.
	///
	/// What lies behind the first 2^32 - 1 bytes is not read.
	/// `text` may be a text that this record or one of its groups gave. If memory runs out,
	/// nothing is changed. Memory is in proportion to the text. @since 2.9
	labeled_serialize_buffer &assign(std::string const &text) override;

	/// Replaces the record by the one that is read from `other.as_str()`, so values become
	/// `std::string`, and those that are nil empty. Assigning a record to itself does nothing;
	/// `other` may be a group of this record. @since 2.9
	labeled_serialize_buffer &assign(labeled_serialize_buffer const &other) override;

	/// The record as text. The reference is good until the next `as_str` or `assign`, or until
	/// the record goes; the groups' own texts are not touched. @since 2.9
	std::string const &as_str() const override;

	/// Gives a label a value, in place of the one it has. @return `value_replaced` if there was
	/// one that wasn't nil, else `value_stored`. @since 2.9
	result_type add_value(std::string const &label, types::variant const &value) override;

	/// The group of a label, emptied if it was there, with the same address; the label's value
	/// stays. A label that wasn't there has a nil value. The record owns the group. @since 2.9
	labeled_serialize_buffer *create_group(std::string const &label) override;

	/// Whether there is such a label, with whatever value and group. @since 2.9
	bool has_label(std::string const &label) const override;
	/// Whether there is such a label with a value that isn't nil. @since 2.9
	bool has_value(std::string const &label) const override;
	/// Whether there is such a label with a group that isn't empty. Writes no text. @since 2.9
	bool has_group(std::string const &label) const override;
	/// Whether there is no label. @since 2.9
	bool is_empty() const override;

	/// The value of a label; nil if there is none. @since 2.9
	types::variant retrieve_value(std::string const &label) const override;
	/// The group of a label, also if it is empty, or null if there is no such label. The
	/// record owns it. @since 2.9
	labeled_serialize_buffer *retrieve_group(std::string const &label) override;
	/// The same of a constant record. @since 2.9
	labeled_serialize_buffer const *retrieve_group(std::string const &label) const override;

	/// A new empty record; the caller owns it. @since 2.9
	labeled_text_buffer *create() const override;
	/// A new deep copy, with the count of this record; the caller owns it. @since 2.9
	labeled_text_buffer *clone() const override;

	/// Makes the record a deep copy of another one, with values of their own types. The count
	/// and the mark of this one stay. Assigning a record to itself does nothing; one may be a
	/// group of the other. If memory runs out, nothing is changed. @since 2.9
	virtual labeled_text_buffer &assign(labeled_text_buffer const &other);

	/// Adds what another record has.
	///
	/// A label that isn't here is copied with value and group. If it is here and its group
	/// there isn't empty, a value there replaces the one here unless it is nil, and the group is
	/// laid over the group here in the same way. If its group there is empty, its value replaces
	/// the one here, nil too, which so takes the value away; the group here stays. No label is
	/// ever removed, and the groups here keep their addresses.
	///
	/// `other` may be this record, a group of it or one that it is a group of: it counts as it
	/// was before. If memory runs out, nothing is changed. @since 2.9
	void overlay(labeled_text_buffer const &other);

private:
	friend struct detail::labeled_record;

	/// Null in most records without labels.
	std::unique_ptr<detail::label_entries> entries;
};

} // namespace QUOR_2_9::serialization

#endif
