// Boost.Locale's format with patterns from a map, in the "C" locale of its own backend.

#include <locale>
#include <string>
#include <unordered_map>
#include <vector>

#include <boost/locale.hpp>

#include "message/competition.hpp"

namespace message_bench {
namespace {

class boost_store {
public:
	explicit boost_store(std::vector<sample> const &samples) {
		boost::locale::localization_backend_manager backends = boost::locale::localization_backend_manager::global();
		backends.select("std");
		m_locale = boost::locale::generator(backends)("C.UTF-8");
		for (sample const &one : samples) {
			m_patterns[one.key] = pattern_with(one.pattern, "{1}", "{2}", "{3,num=fix,precision=2}");
		}
	}

	static sample const *arguments(sample const &one) { return &one; }

	std::string render(char const *key, sample const *values) const {
		boost::locale::format pattern(m_patterns.find(key)->second);
		pattern % values->name % values->count % values->seconds;
		return pattern.str(m_locale);
	}

	static std::string plain(std::string text) { return text; }

private:
	std::locale m_locale;
	std::unordered_map<std::string, std::string> m_patterns;
};

void describe() {
	compete<boost_store>("Boost.Locale");
}

bench::entry const added(&describe);

} // namespace
} // namespace message_bench
