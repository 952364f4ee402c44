#include <cstddef>
#include <utility>
#include <vector>

#include "serialization/framed_reader.hpp"
#include "serialization/framed_writer.hpp"
#include "serialization/labeled_record.hpp"
#include "types/held_text.hpp"

namespace QUOR_2_9::serialization::detail {
namespace {

using entry_map = label_entries::entry_map;

/// What is put behind the label of a group.
constexpr char group_mark = ' ';

/// How many levels are opened without asking for memory again.
constexpr std::size_t usual_depth = 8;

/// The text of a record that is being read.
struct open_text {
	framed_reader reader;
	labeled_text_buffer *record;
};

/// A record that is being written, from its last label to its first.
struct open_record {
	entry_map::const_reverse_iterator next;
	entry_map::const_reverse_iterator end;
	/// How many bytes were written before.
	std::size_t mark;
};

void put_value(framed_writer &out, std::string_view label, types::variant const &value) {
	if (std::string const *const text = types::detail::held_text::of(value); text != nullptr) {
		out.put(*text);
	} else {
		out.put(value.as_string());
	}
	out.put(label);
}

} // namespace

void labeled_record::parse(std::string_view text, labeled_text_buffer &record) {
	std::vector<open_text> open;
	open.reserve(usual_depth);
	open.push_back({framed_reader(text), &record});
	while (!open.empty()) {
		auto &[reader, target] = open.back();
		std::string_view const key = reader.read();
		if (key.empty()) {
			open.pop_back();
		} else if (key.back() != group_mark) {
			store_value(*target, key, std::string(reader.read()));
		} else {
			labeled_text_buffer &group = store_group(*target, key);
			std::string_view const group_text = reader.read();
			if (open.size() <= labeled_text_buffer::nesting_limit) {
				open.push_back({framed_reader(group_text), &group});
			}
		}
	}
}

std::string const &labeled_record::render(labeled_text_buffer const &record) {
	static std::string const without_labels;
	entry_map const *const map = map_if_any(record);
	if (map == nullptr) {
		return without_labels;
	}
	std::string &text = record.entries->text;
	text = written(*map, std::move(text));
	return text;
}

std::string labeled_record::written(entry_map const &map, std::string &&memory) {
	framed_writer out(std::move(memory));
	std::vector<open_record> open;
	open.reserve(usual_depth);
	open.push_back({map.rbegin(), map.rend(), 0});
	while (!open.empty()) {
		auto &[next, end, mark] = open.back();
		if (next == end) {
			std::size_t const size = out.size() - mark;
			open.pop_back();
			if (!open.empty()) {
				auto const &[label, entry] = *open.back().next++;
				out.begin_string(size);
				out.put(label.text, {&group_mark, 1});
				if (entry.value != types::nil) {
					put_value(out, label.text, entry.value);
				}
			}
		} else if (auto const *const nested = map_if_any(next->second); nested != nullptr) {
			out.end_string();
			open.push_back({nested->rbegin(), nested->rend(), out.size()});
		} else {
			put_value(out, next->first.text, next->second.value);
			++next;
		}
	}
	return out.take();
}

} // namespace QUOR_2_9::serialization::detail
