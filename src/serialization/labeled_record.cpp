#include "serialization/labeled_record.hpp"

#include <tuple>
#include <utility>
#include <vector>

namespace QUOR_2_9::serialization::detail {
namespace {

using entry_map = label_entries::entry_map;

bool is_stripped(char c) noexcept {
	return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

label_view stripped(std::string_view label) noexcept {
	while (!label.empty() && is_stripped(label.back())) {
		label.remove_suffix(1);
	}
	while (!label.empty() && is_stripped(label.front())) {
		label.remove_prefix(1);
	}
	return label_view(label);
}

/// Where a label stands or is to stand. Labels that come in their order need no search.
template <class Text>
entry_map::iterator place_of(entry_map &map, ordered_label<Text> const &label) {
	if (map.empty() || label_order()(map.rbegin()->first, label)) {
		return map.end();
	}
	return map.lower_bound(label);
}

/// Whether a label stands in its place.
template <class Text>
bool is_label(entry_map const &map, entry_map::const_iterator place, ordered_label<Text> const &label) {
	return place != map.end() && !label_order()(label, place->first);
}

} // namespace

entry_map const *labeled_record::map_if_any(labeled_text_buffer const &record) noexcept {
	return record.entries && !record.entries->map.empty() ? &record.entries->map : nullptr;
}

entry_map const *labeled_record::map_if_any(label_entry const &entry) noexcept {
	labeled_text_buffer const *const group = entry.group_if_any();
	return group != nullptr ? map_if_any(*group) : nullptr;
}

entry_map &labeled_record::map_of(labeled_text_buffer &record) {
	if (!record.entries) {
		record.entries = std::make_unique<label_entries>();
	}
	return record.entries->map;
}

label_entry *labeled_record::find(labeled_text_buffer const &record, std::string_view label) {
	if (!record.entries) {
		return nullptr;
	}
	entry_map &map = record.entries->map;
	auto const found = map.find(label_view(label));
	return found != map.end() ? &found->second : nullptr;
}

bool labeled_record::store_value(labeled_text_buffer &record, std::string_view label, types::variant const &value) {
	label_view const name = stripped(label);
	entry_map &map = map_of(record);
	auto const place = place_of(map, name);
	if (!is_label(map, place, name)) {
		map.emplace_hint(place, name, value);
		return false;
	}
	bool const had_value = place->second.value != types::nil;
	place->second.value = value;
	return had_value;
}

labeled_text_buffer &labeled_record::store_group(labeled_text_buffer &record, std::string_view label) {
	label_view const name = stripped(label);
	entry_map &map = map_of(record);
	auto const place = place_of(map, name);
	if (!is_label(map, place, name)) {
		return map.emplace_hint(place, std::piecewise_construct, std::forward_as_tuple(name), std::forward_as_tuple())
		    ->second.group();
	}
	labeled_text_buffer &group = place->second.group();
	if (group.entries) {
		release(take_nested(*group.entries, nullptr));
		group.entries->map.clear();
	}
	return group;
}

entries_pointer labeled_record::copy(labeled_text_buffer const &record) {
	entry_map const *const first = map_if_any(record);
	if (first == nullptr) {
		return nullptr;
	}
	auto result = std::make_unique<label_entries>();
	std::vector<std::pair<entry_map const *, entry_map *>> open{{first, &result->map}};
	while (!open.empty()) {
		auto const [source, target] = open.back();
		open.pop_back();
		for (auto const &[label, entry] : *source) {
			auto const added = target->emplace_hint(target->end(), label, entry);
			if (entry_map const *const nested = map_if_any(entry); nested != nullptr) {
				open.emplace_back(nested, &map_of(added->second.group()));
			}
		}
	}
	return result;
}

void labeled_record::replace(labeled_text_buffer &record, entries_pointer entries) noexcept {
	record.entries.swap(entries);
	release(std::move(entries));
}

void labeled_record::overlay(entries_pointer source, labeled_text_buffer &target) noexcept {
	if (source) {
		source->target = &target;
	}
	while (source) {
		entries_pointer current = std::move(source);
		source = std::move(current->next);
		labeled_text_buffer &record = *current->target;
		if (!record.entries) {
			record.entries = std::move(current);
			continue;
		}
		entry_map &map = record.entries->map;
		for (auto next = current->map.begin(); next != current->map.end();) {
			auto const entry = next++;
			auto const place = place_of(map, entry->first);
			if (!is_label(map, place, entry->first)) {
				map.insert(place, current->map.extract(entry));
			} else if (lay_value(entry->second, place->second)) {
				entries_pointer &nested = entry->second.group().entries;
				nested->target = &place->second.group();
				nested->next = std::move(source);
				source = std::move(nested);
			}
		}
	}
}

bool labeled_record::lay_value(label_entry const &source, label_entry &target) noexcept {
	bool const has_group = map_if_any(source) != nullptr;
	if (!has_group || source.value != types::nil) {
		target.value = source.value;
	}
	return has_group;
}

entries_pointer labeled_record::take_nested(label_entries &from, entries_pointer list) noexcept {
	for (auto &[label, entry] : from.map) {
		if (entry.group_if_any() == nullptr) {
			continue;
		}
		if (entries_pointer &nested = entry.group().entries; nested) {
			nested->next = std::move(list);
			list = std::move(nested);
		}
	}
	return list;
}

void labeled_record::release(entries_pointer entries) noexcept {
	while (entries) {
		entries_pointer const emptied = std::move(entries);
		entries = take_nested(*emptied, std::move(emptied->next));
	}
}

} // namespace QUOR_2_9::serialization::detail
