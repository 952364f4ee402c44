#ifndef QUOR_SRC_SERIALIZATION_LABELED_RECORD_HPP
#define QUOR_SRC_SERIALIZATION_LABELED_RECORD_HPP

#include <string>
#include <string_view>

#include <quor/serialization/labeled_text_buffer.hpp>
#include <quor/types/variant.hpp>

#include "serialization/label_entries.hpp"

namespace QUOR_2_9::serialization::detail {

/// The operations that go through nested records. None of them recurses.
struct labeled_record {
	/// The entry of a label, or null.
	static label_entry *find(labeled_text_buffer const &record, std::string_view label);

	/// Stores the value of a label, stripped, and tells whether there was one.
	static bool store_value(labeled_text_buffer &record, std::string_view label, types::variant const &value);
	/// The group of a label, stripped; it is empty.
	static labeled_text_buffer &store_group(labeled_text_buffer &record, std::string_view label);

	/// Adds the entries of a text to a record.
	static void parse(std::string_view text, labeled_text_buffer &record);

	/// The text of a record, which keeps it.
	static std::string const &render(labeled_text_buffer const &record);

	/// A deep copy of the entries, which may be null.
	static entries_pointer copy(labeled_text_buffer const &record);

	/// Gives a record other entries.
	static void replace(labeled_text_buffer &record, entries_pointer entries) noexcept;

	/// Lays `source`, all of whose entries may be taken, over `target`.
	static void overlay(entries_pointer source, labeled_text_buffer &target) noexcept;

	/// Destroys entries and all that is nested in them.
	static void release(entries_pointer entries) noexcept;

private:
	static std::string written(label_entries::entry_map const &map, std::string &&memory);
	/// Null if there are no labels.
	static label_entries::entry_map const *map_if_any(labeled_text_buffer const &record) noexcept;
	/// The same of the group of an entry.
	static label_entries::entry_map const *map_if_any(label_entry const &entry) noexcept;
	/// Puts the entries of the groups in `from` before those of a list.
	static entries_pointer take_nested(label_entries &from, entries_pointer list) noexcept;
	/// Lays the value of an entry over another; tells whether the group is to follow.
	static bool lay_value(label_entry const &source, label_entry &target) noexcept;
	static label_entries::entry_map &map_of(labeled_text_buffer &record);
};

} // namespace QUOR_2_9::serialization::detail

#endif
