// {fmt} with named arguments and patterns from a map.

#include <string>
#include <unordered_map>
#include <vector>

#include <fmt/format.h>

#include "message/competition.hpp"

namespace message_bench {
namespace {

class fmt_store {
public:
	explicit fmt_store(std::vector<sample> const &samples) {
		for (sample const &one : samples) {
			m_patterns[one.key] = pattern_with(one.pattern, "{name}", "{count}", "{seconds:.2f}");
		}
	}

	// The arguments themselves; what the library makes of them lives as long as the call alone.
	static sample const *arguments(sample const &one) { return &one; }

	std::string render(char const *key, sample const *values) const {
		std::string const &pattern = m_patterns.find(key)->second;
		return fmt::format(fmt::runtime(pattern), fmt::arg("name", values->name), fmt::arg("count", values->count),
		                   fmt::arg("seconds", values->seconds));
	}

	static std::string plain(std::string text) { return text; }

private:
	std::unordered_map<std::string, std::string> m_patterns;
};

void describe() {
	compete<fmt_store>("fmt");
}

bench::entry const added(&describe);

} // namespace
} // namespace message_bench
