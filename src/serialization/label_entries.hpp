#ifndef QUOR_SRC_SERIALIZATION_LABEL_ENTRIES_HPP
#define QUOR_SRC_SERIALIZATION_LABEL_ENTRIES_HPP

#include <bit>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/serialization/labeled_text_buffer.hpp>
#include <quor/types/variant.hpp>

#include "generic/convert/byte_image.hpp"
#include "serialization/entry_memory.hpp"

namespace QUOR_2_9::serialization::detail {

/// What a label has.
class label_entry {
public:
	label_entry() = default;
	explicit label_entry(types::variant const &new_value) : value(new_value) {}
	/// Copies the value, and the count and the mark of the group, but not its labels.
	label_entry(label_entry const &other) : value(other.value) {
		if (other.m_group) {
			counted const &theirs = *other.m_group;
			counted &ours = m_group.emplace();
			ours = theirs;
		}
	}
	label_entry &operator=(label_entry const &other) = delete;
	~label_entry() = default;

	/// The group. It is made here when it is first asked for, which can't fail.
	labeled_text_buffer &group() noexcept { return m_group ? *m_group : m_group.emplace(); }
	/// The group, or null if nobody has asked for it.
	labeled_text_buffer const *group_if_any() const noexcept { return m_group ? &*m_group : nullptr; }

	types::variant value;

private:
	using counted = generic::abilities::reference_count_pointer_ability_b;

	std::optional<labeled_text_buffer> m_group;
};

/// A label, and its first bytes as a number that orders them: mostly no more need be compared.
template <class Text>
struct ordered_label {
	explicit ordered_label(std::string_view label) : first(first_bytes(label)), text(label) {}
	explicit ordered_label(ordered_label<std::string_view> const &label) : first(label.first), text(label.text) {}

	std::uint64_t first;
	Text text;

private:
	/// What is missing counts as zero bytes.
	static std::uint64_t first_bytes(std::string_view label) noexcept {
		using generic::convert::detail::load_number;
		std::size_t const size = label.size();
		if (size >= 8) {
			return load_number<std::uint64_t, std::endian::big>(label.data());
		}
		std::uint64_t result = 0;
		if (size >= 4) {
			// Where they overlap, they are the same.
			std::uint64_t const last = load_number<std::uint32_t, std::endian::big>(label.data() + size - 4);
			result = load_number<std::uint32_t, std::endian::big>(label.data());
			return result << 32 | last << 8 * (8 - size);
		}
		for (std::size_t i = 0; i != size; ++i) {
			result |= std::uint64_t(static_cast<unsigned char>(label[i])) << (56 - 8 * i);
		}
		return result;
	}
};

/// A label to look for, and one that is kept.
using label_view = ordered_label<std::string_view>;
using stored_label = ordered_label<std::string>;

/// The order of the labels' bytes.
struct label_order {
	using is_transparent = void;

	template <class First, class Second>
	bool operator()(ordered_label<First> const &first, ordered_label<Second> const &second) const noexcept {
		return first.first != second.first ? first.first < second.first
		                                   : std::string_view(first.text) < std::string_view(second.text);
	}
};

using entries_pointer = std::unique_ptr<label_entries>;

/// The labels of a record. `next` makes a list of records that have been taken out of others,
/// to be destroyed or laid over their `target`, without memory of its own; otherwise it is
/// null.
struct label_entries {
	using entry_map =
	    std::map<stored_label, label_entry, label_order, entry_allocator<std::pair<stored_label const, label_entry>>>;

	entry_memory memory;
	entry_map map{entry_map::allocator_type(memory)};
	/// What `as_str` gave.
	std::string text;
	entries_pointer next;
	labeled_text_buffer *target = nullptr;
};

} // namespace QUOR_2_9::serialization::detail

#endif
