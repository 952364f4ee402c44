#ifndef QUOR_TESTS_REFERENCE_LABELED_RECORD_HPP
#define QUOR_TESTS_REFERENCE_LABELED_RECORD_HPP

// Labeled records, slow and obvious: a sorted list of labels, copies of texts everywhere,
// recursion for groups.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <quor/types/variant.hpp>

#include "reference/str_to_number_reference.hpp"

namespace quor_reference {

// The strings of a text, each behind its length.
class framed_strings {
public:
	explicit framed_strings(std::string const &text) : m_text(text) {}

	// Whether there is no other.
	bool at_end() const { return m_ended || m_position >= m_text.size(); }

	std::string next() {
		std::string digits;
		std::size_t behind = m_position;
		while (behind < m_text.size() && m_text[behind] != '\x01') {
			digits += m_text[behind++];
		}
		if (at_end() || behind == m_text.size()) {
			m_ended = true;
			return "";
		}
		std::int64_t const length = number(digits);
		++behind;
		std::string result;
		if (length < 0) {
			m_ended = true;
			return m_text.substr(behind);
		}
		for (std::int64_t i = 0; i != length && behind < m_text.size(); ++i) {
			result += m_text[behind++];
		}
		m_position = behind + 1;
		return result;
	}

private:
	static std::int64_t number(std::string const &digits) {
		if (digits.empty()) {
			return 0;
		}
		std::vector<std::int64_t> units;
		for (char const digit : digits) {
			units.push_back(static_cast<unsigned char>(digit));
		}
		units.push_back(0);
		return str_to_number(units, digits.size(), 0, false, {32, true}).value;
	}

	std::string m_text;
	std::size_t m_position = 0;
	bool m_ended = false;
};

struct labeled_entry;

struct labeled_record {
	static constexpr int nesting_limit = 1000;

	std::vector<labeled_entry> entries;

	// The entry of a label, or null.
	labeled_entry const *find(std::string const &label) const;
	labeled_entry *find(std::string const &label);
	// The entry of a label, made where there is none.
	labeled_entry &at(std::string const &label);

	static std::string stripped(std::string label) {
		auto const is_blank = [](char byte) { return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t'; };
		while (!label.empty() && is_blank(label.front())) {
			label.erase(0, 1);
		}
		while (!label.empty() && is_blank(label.back())) {
			label.pop_back();
		}
		return label;
	}

	// Whether there was a value before.
	bool add_value(std::string const &label, QUOR_2_9::types::variant const &value);
	labeled_record &create_group(std::string const &label);
	std::string as_str() const;
	// `depth` is how deep the record lies in the one that is assigned to.
	void assign(std::string const &text, int depth = 0);
	void overlay(labeled_record const &other);
};

struct labeled_entry {
	std::string label;
	QUOR_2_9::types::variant value;
	labeled_record group;
};

// By bytes without sign, what is shorter first.
inline bool is_before(std::string const &left, std::string const &right) {
	for (std::size_t i = 0; i != left.size() && i != right.size(); ++i) {
		if (left[i] != right[i]) {
			return static_cast<unsigned char>(left[i]) < static_cast<unsigned char>(right[i]);
		}
	}
	return left.size() < right.size();
}

inline labeled_entry *labeled_record::find(std::string const &label) {
	for (labeled_entry &entry : entries) {
		if (entry.label == label) {
			return &entry;
		}
	}
	return nullptr;
}

inline labeled_entry const *labeled_record::find(std::string const &label) const {
	return const_cast<labeled_record *>(this)->find(label);
}

inline labeled_entry &labeled_record::at(std::string const &label) {
	if (labeled_entry *const entry = find(label)) {
		return *entry;
	}
	auto place = entries.begin();
	while (place != entries.end() && is_before(place->label, label)) {
		++place;
	}
	return *entries.insert(place, labeled_entry{label, QUOR_2_9::types::nil, {}});
}

inline bool labeled_record::add_value(std::string const &label, QUOR_2_9::types::variant const &value) {
	labeled_entry &entry = at(stripped(label));
	bool const had_value = entry.value != QUOR_2_9::types::nil;
	entry.value = value;
	return had_value;
}

inline labeled_record &labeled_record::create_group(std::string const &label) {
	labeled_record &group = at(stripped(label)).group;
	group.entries.clear();
	return group;
}

inline std::string labeled_record::as_str() const {
	auto const framed = [](std::string const &text) { return std::to_string(text.size()) + '\x01' + text + '\x01'; };
	std::string result;
	for (labeled_entry const &entry : entries) {
		bool const has_group = !entry.group.entries.empty();
		if (!has_group || entry.value != QUOR_2_9::types::nil) {
			result += framed(entry.label) + framed(entry.value.as_string());
		}
		if (has_group) {
			result += framed(entry.label + ' ') + framed(entry.group.as_str());
		}
	}
	return result;
}

inline void labeled_record::assign(std::string const &text, int depth) {
	entries.clear();
	framed_strings strings(text);
	while (!strings.at_end()) {
		std::string const key = strings.next();
		if (key.empty()) {
			return;
		}
		if (key.back() == ' ') {
			labeled_record &group = create_group(key);
			std::string const group_text = strings.next();
			if (depth < nesting_limit) {
				group.assign(group_text, depth + 1);
			}
		} else {
			add_value(key, strings.next());
		}
	}
}

inline void labeled_record::overlay(labeled_record const &other) {
	for (labeled_entry const &there : other.entries) {
		labeled_entry *const here = find(there.label);
		if (here == nullptr) {
			at(there.label) = there;
		} else if (there.group.entries.empty()) {
			here->value = there.value;
		} else {
			if (there.value != QUOR_2_9::types::nil) {
				here->value = there.value;
			}
			here->group.overlay(there.group);
		}
	}
}

} // namespace quor_reference

#endif
