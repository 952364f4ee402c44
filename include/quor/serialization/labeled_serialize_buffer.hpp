#ifndef QUOR_SERIALIZATION_LABELED_SERIALIZE_BUFFER_HPP
#define QUOR_SERIALIZATION_LABELED_SERIALIZE_BUFFER_HPP

/// @file
/// The interface of records whose values and groups have names, so that data outlives a
/// change of the fields: a reader asks for the labels that it knows. The class to use is
/// `labeled_text_buffer` (`quor/serialization/labeled_text_buffer.hpp`); for values in
/// a fixed order take `serialize_buffer` (`quor/serialization/serialize_buffer.hpp`).
///
///     void store(window const &w, quor::serialization::labeled_serialize_buffer &out) {
///         out.add_value("title", w.title);
///         quor::serialization::labeled_serialize_buffer *const size = out.create_group("size");
///         size->add_value("width", w.width);
///         size->add_value("height", w.height);
///     }
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/generic/abilities/clone_ability.hpp>
#include <quor/generic/abilities/create_ability.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::serialization {

/// A record: each label has a value, a group of further labels, or both.
///
/// The order of the virtual functions is part of the binary interface. Thread-safety: one
/// thread at a time, also for `const` operations. Copies, clones and assignment treat count
/// and flag as those of `serialize_buffer` do.
/// @since 2.9
class QUOR_API labeled_serialize_buffer
    : public generic::abilities::create_ability,
      public generic::abilities::clone_ability,
      public generic::abilities::reference_count_pointer_ability<labeled_serialize_buffer> {
public:
	/// What `add_value` did. @since 2.9
	enum result_type {
		value_stored = 0,  ///< The label had no value before.
		value_replaced = 1 ///< The label had a value, now overwritten.
	};

	/// A record that nobody holds. @since 2.9
	labeled_serialize_buffer() = default;
	/// Copies the count and the flag. @since 2.9
	labeled_serialize_buffer(labeled_serialize_buffer const &) = default;
	/// Destroys the derived object. @since 2.9
	~labeled_serialize_buffer() override;

	/// Replaces the record by what `length` bytes of flat text tell. Null or a negative length
	/// is the empty text. @since 2.9
	virtual labeled_serialize_buffer &assign(char const *data, int length) = 0;
	/// Replaces the record by what a flat text tells. @since 2.9
	virtual labeled_serialize_buffer &assign(std::string const &text) = 0;
	/// Replaces the record by what the flat text of another one tells, whatever its class.
	/// @since 2.9
	virtual labeled_serialize_buffer &assign(labeled_serialize_buffer const &other) = 0;
	/// The record as flat text. The reference is good until the next `as_str` or `assign`.
	/// @since 2.9
	virtual std::string const &as_str() const = 0;

	/// Stores a value under a label, beside a group that the label may have. @since 2.9
	virtual result_type add_value(std::string const &label, types::variant const &value) = 0;
	/// The group of a label, emptied or new, beside a value that the label may have. The record
	/// owns it. @since 2.9
	virtual labeled_serialize_buffer *create_group(std::string const &label) = 0;
	/// Whether the record has the label. @since 2.9
	virtual bool has_label(std::string const &label) const = 0;
	/// Whether the label has a value that is not nil. @since 2.9
	virtual bool has_value(std::string const &label) const = 0;
	/// Whether the label has a group that is not empty. @since 2.9
	virtual bool has_group(std::string const &label) const = 0;
	/// Whether the record has no label. @since 2.9
	virtual bool is_empty() const = 0;
	/// The value of a label, nil where there is none. @since 2.9
	virtual types::variant retrieve_value(std::string const &label) const = 0;
	/// The group of a label, which may be empty, or null where the label is absent. The record
	/// owns it. @since 2.9
	virtual labeled_serialize_buffer *retrieve_group(std::string const &label) = 0;
	/// The same to look at. @since 2.9
	virtual labeled_serialize_buffer const *retrieve_group(std::string const &label) const = 0;

	/// A new empty record of the same class, made by `create_dynamic`; the caller owns it.
	/// @since 2.9
	virtual labeled_serialize_buffer *create() const = 0;
	/// A deep copy that carries the count of this record, made by `create_dynamic`; the caller
	/// owns it. @since 2.9
	virtual labeled_serialize_buffer *clone() const = 0;

	/// The same as `assign(other)`. @since 2.9
	labeled_serialize_buffer &operator=(labeled_serialize_buffer const &other);
	/// The same as `assign(text)`. @since 2.9
	labeled_serialize_buffer &operator=(std::string const &text);
};

} // namespace QUOR_2_9::serialization

#endif
