#include "records.hpp"

#include <random>

namespace serialization_bench {
namespace {

class source {
public:
	/// Of all lengths up to the width of the type, each equally often.
	template <class Number>
	Number number() {
		auto const bits = random() % (8 * sizeof(Number)) + 1;
		auto const value = static_cast<Number>(random() >> (64 - bits));
		return random() % 2 == 0 ? value : static_cast<Number>(-value);
	}

	double fraction() { return static_cast<double>(static_cast<std::int64_t>(random() >> 11)) / 1e12; }

	/// A number that is written with few digits.
	double decimal() { return static_cast<double>(random() % 100000) / 100; }

	std::string text(std::size_t least, std::size_t most) {
		std::string result;
		for (std::size_t left = least + random() % (most - least + 1); left != 0; --left) {
			result += "abcdefghijklmnopqrstuvwxyz ABCDEFGHIJKLMNOPQRSTUVWXYZ.0123456789"[random() % 64];
		}
		return result;
	}

	std::int32_t below(std::int32_t bound) {
		return static_cast<std::int32_t>(random() % static_cast<std::uint64_t>(bound));
	}

private:
	std::mt19937_64 random{2900};
};

records make(std::size_t least, std::size_t most) {
	source from;
	records result(record_count);
	for (record &one : result) {
		one = {from.number<std::int8_t>(),
		       from.number<std::int16_t>(),
		       from.number<std::int32_t>(),
		       from.number<std::int64_t>(),
		       from.number<std::uint8_t>(),
		       from.number<std::uint16_t>(),
		       from.number<std::uint32_t>(),
		       from.number<std::uint64_t>(),
		       from.fraction(),
		       from.fraction(),
		       from.text(least, most),
		       from.text(least, most)};
	}
	return result;
}

} // namespace

records const &short_records() {
	static records const result = make(4, 15);
	return result;
}

records const &long_records() {
	static records const result = make(20, 60);
	return result;
}

std::vector<labels> const &labeled_records() {
	static std::vector<labels> const result = [] {
		source from;
		std::vector<labels> list(256);
		for (labels &one : list) {
			one.owner = {from.text(6, 24),  from.text(10, 30), from.text(4, 16),
			             from.text(2, 5),   from.below(120),   from.below(1000000) * std::int64_t(1000000),
			             from.below(2) != 0};
			one.screen = {from.below(8000), from.below(5000), from.decimal(),    from.decimal(),
			              from.text(4, 10), from.text(8, 24), from.below(2) != 0};
			one.backup = {from.text(20, 60), from.text(20, 60), from.below(24),
			              from.below(1000),  from.decimal(),    from.below(2) != 0};
		}
		return list;
	}();
	return result;
}

} // namespace serialization_bench
