#include "serialization/labeled_record.hpp"

#include <tuple>
#include <utility>
#include <vector>

namespace QUOR_2_9::serialization::detail {
namespace {

using entry_map = label_entries::entry_map;

std::string_view stripped(std::string_view label) noexcept {
	constexpr std::string_view blanks = " \n\r\t";
	std::size_t const first = label.find_first_not_of(blanks);
	if (first == std::string_view::npos) {
		return {};
	}
	return label.substr(first, label.find_last_not_of(blanks) + 1 - first);
}

/// Where a label stands or is to stand. Labels that come in their order need no search.
entry_map::iterator place_of(entry_map &map, std::string_view label) {
	if (map.empty() || map.rbegin()->first < label) {
		return map.end();
	}
	return map.lower_bound(label);
}

bool is_label(entry_map const &map, entry_map::const_iterator place, std::string_view label) {
	return place != map.end() && place->first == label;
}

} // namespace

entry_map const *labeled_record::map_if_any(labeled_text_buffer const &record) noexcept {
	return record.entries && !record.entries->map.empty() ? &record.entries->map : nullptr;
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
	auto const found = map.find(label);
	return found != map.end() ? &found->second : nullptr;
}

bool labeled_record::store_value(labeled_text_buffer &record, std::string_view label, types::variant const &value) {
	std::string_view const name = stripped(label);
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
	std::string_view const name = stripped(label);
	entry_map &map = map_of(record);
	auto const place = place_of(map, name);
	if (!is_label(map, place, name)) {
		return map.emplace_hint(place, std::piecewise_construct, std::forward_as_tuple(name), std::forward_as_tuple())
		    ->second.group;
	}
	labeled_text_buffer &group = place->second.group;
	release(std::move(group.entries));
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
			auto const added =
			    target->emplace_hint(target->end(), std::piecewise_construct, std::forward_as_tuple(label),
			                         std::forward_as_tuple(entry, labeled_text_buffer::without_entries()));
			if (entry_map const *const nested = map_if_any(entry.group); nested != nullptr) {
				open.emplace_back(nested, &map_of(added->second.group));
			}
		}
	}
	return result;
}

void labeled_record::replace(labeled_text_buffer &record, entries_pointer entries) noexcept {
	record.entries.swap(entries);
	record.text_buffer.clear();
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
		if (map_if_any(record) == nullptr) {
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
				entries_pointer &nested = entry->second.group.entries;
				nested->target = &place->second.group;
				nested->next = std::move(source);
				source = std::move(nested);
			}
		}
	}
}

bool labeled_record::lay_value(label_entry const &source, label_entry &target) noexcept {
	bool const has_group = map_if_any(source.group) != nullptr;
	if (!has_group || source.value != types::nil) {
		target.value = source.value;
	}
	return has_group;
}

void labeled_record::release(entries_pointer entries) noexcept {
	while (entries) {
		entries_pointer const emptied = std::move(entries);
		entries = std::move(emptied->next);
		for (auto &[label, entry] : emptied->map) {
			if (entries_pointer &nested = entry.group.entries; nested) {
				nested->next = std::move(entries);
				entries = std::move(nested);
			}
		}
	}
}

} // namespace QUOR_2_9::serialization::detail
