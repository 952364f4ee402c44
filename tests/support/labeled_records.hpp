#ifndef QUOR_TESTS_SUPPORT_LABELED_RECORDS_HPP
#define QUOR_TESTS_SUPPORT_LABELED_RECORDS_HPP

// Labeled records in tests: their texts spelled with letters, and their comparison with the
// reference's.

#include <algorithm>
#include <string>

#include <quor/serialization/labeled_text_buffer.hpp>

#include "reference/labeled_record.hpp"

namespace quor_test {

// A text with "S" for each byte 0x01, which stands behind all lengths and strings.
inline std::string framed(std::string text) {
	std::replace(text.begin(), text.end(), 'S', '\x01');
	return text;
}

// The text for people, the other way round.
inline std::string spelled(std::string text) {
	std::replace(text.begin(), text.end(), '\x01', 'S');
	return text;
}

// A text as a string with its length in front.
inline std::string framed_string(std::string const &text) {
	return std::to_string(text.size()) + '\x01' + text + '\x01';
}

// Where a record differs from the reference's, as a path of labels; empty where it doesn't.
inline std::string difference(quor_reference::labeled_record const &expected,
                              QUOR_2_9::serialization::labeled_serialize_buffer const &found) {
	using QUOR_2_9::types::nil;
	if (found.is_empty() != expected.entries.empty()) {
		return "emptiness";
	}
	for (quor_reference::labeled_entry const &entry : expected.entries) {
		QUOR_2_9::types::variant const value = found.retrieve_value(entry.label);
		auto const *const group = found.retrieve_group(entry.label);
		if (!found.has_label(entry.label) || group == nullptr) {
			return "label " + entry.label;
		}
		if (value.type() != entry.value.type() || value.as_string() != entry.value.as_string()) {
			return "value of " + entry.label;
		}
		if (found.has_value(entry.label) != (entry.value != nil)) {
			return "has_value of " + entry.label;
		}
		if (found.has_group(entry.label) == entry.group.entries.empty()) {
			return "has_group of " + entry.label;
		}
		std::string const inside = difference(entry.group, *group);
		if (!inside.empty()) {
			return entry.label + ", " + inside;
		}
	}
	// Shows labels that aren't in the reference.
	return found.as_str() == expected.as_str() ? "" : "text " + spelled(found.as_str());
}

// Whether an empty label with a value stands in a record or in one of its groups: it ends the
// reading of what is written.
inline bool hides_labels(quor_reference::labeled_record const &record) {
	return std::any_of(record.entries.begin(), record.entries.end(), [](auto const &entry) {
		bool const is_value = entry.group.entries.empty() || entry.value != QUOR_2_9::types::nil;
		return (entry.label.empty() && is_value) || hides_labels(entry.group);
	});
}

} // namespace quor_test

#endif
