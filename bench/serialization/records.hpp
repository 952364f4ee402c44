#ifndef QUOR_BENCH_SERIALIZATION_RECORDS_HPP
#define QUOR_BENCH_SERIALIZATION_RECORDS_HPP

// Records that every competitor writes and reads.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace serialization_bench {

/// Eight integers, two doubles and two strings.
template <class Text>
struct record_of {
	std::int8_t a = 0;
	std::int16_t b = 0;
	std::int32_t c = 0;
	std::int64_t d = 0;
	std::uint8_t e = 0;
	std::uint16_t f = 0;
	std::uint32_t g = 0;
	std::uint64_t h = 0;
	double x = 0;
	double y = 0;
	Text name;
	Text note;

	bool operator==(record_of const &) const = default;

	/// Calls `with` for each field in turn.
	template <class Function>
	void each(Function &&with) {
		with(a), with(b), with(c), with(d), with(e), with(f), with(g), with(h), with(x), with(y), with(name),
		    with(note);
	}
};

using record = record_of<std::string>;
using records = std::vector<record>;

inline constexpr std::size_t record_count = 256;

/// Two hundred and fifty-six records whose strings have at most 15 bytes.
records const &short_records();
/// The same with strings of 20 to 60 bytes.
records const &long_records();

/// Twenty labels in three groups: texts, whole numbers, and numbers of at most eight digits.
struct labels {
	struct account {
		std::string name;
		std::string mail;
		std::string city;
		std::string language;
		std::int32_t age = 0;
		std::int64_t created = 0;
		bool active = false;
		bool operator==(account const &) const = default;
	} owner;
	struct display {
		std::int32_t width = 0;
		std::int32_t height = 0;
		double scale = 0;
		double gamma = 0;
		std::string theme;
		std::string font;
		bool full_screen = false;
		bool operator==(display const &) const = default;
	} screen;
	struct schedule {
		std::string folder;
		std::string target;
		std::int32_t hour = 0;
		std::int32_t keep_days = 0;
		double ratio = 0;
		bool compress = false;
		bool operator==(schedule const &) const = default;
	} backup;
	bool operator==(labels const &) const = default;
};

/// Two hundred and fifty-six of them.
std::vector<labels> const &labeled_records();

} // namespace serialization_bench

#endif
