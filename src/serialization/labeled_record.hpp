#ifndef QUOR_SRC_SERIALIZATION_LABELED_RECORD_HPP
#define QUOR_SRC_SERIALIZATION_LABELED_RECORD_HPP

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include <quor/serialization/labeled_text_buffer.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::serialization::detail {

/// What a label has.
struct label_entry {
	label_entry() = default;
	explicit label_entry(types::variant const &new_value) : value(new_value) {}
	/// A copy without the entries of the group.
	label_entry(label_entry const &other, labeled_text_buffer::without_entries without)
	    : group(other.group, without), value(other.value) {}

	labeled_text_buffer group;
	types::variant value;
};

using entries_pointer = std::unique_ptr<label_entries>;

/// The labels of a record. `next` makes a list of records that have been taken out of others,
/// to be destroyed or laid over their `target`, without memory of its own; otherwise it is
/// null.
struct label_entries {
	using entry_map = std::map<std::string, label_entry, std::less<>>;

	entry_map map;
	entries_pointer next;
	labeled_text_buffer *target = nullptr;
};

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

	/// The text of a record, in the memory of `memory`.
	static std::string render(labeled_text_buffer const &record, std::string &&memory);

	/// A deep copy of the entries, which may be null.
	static entries_pointer copy(labeled_text_buffer const &record);

	/// Gives a record other entries, and no text.
	static void replace(labeled_text_buffer &record, entries_pointer entries) noexcept;

	/// Lays `source`, all of whose entries may be taken, over `target`.
	static void overlay(entries_pointer source, labeled_text_buffer &target) noexcept;

	/// Destroys entries and all that is nested in them.
	static void release(entries_pointer entries) noexcept;

private:
	/// Null if there are no labels.
	static label_entries::entry_map const *map_if_any(labeled_text_buffer const &record) noexcept;
	/// Lays the value of an entry over another; tells whether the group is to follow.
	static bool lay_value(label_entry const &source, label_entry &target) noexcept;
	static label_entries::entry_map &map_of(labeled_text_buffer &record);
};

} // namespace QUOR_2_9::serialization::detail

#endif
