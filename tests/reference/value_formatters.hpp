#ifndef QUOR_TESTS_REFERENCE_VALUE_FORMATTERS_HPP
#define QUOR_TESTS_REFERENCE_VALUE_FORMATTERS_HPP

// Slow, obvious versions of the value formatters: attribute strings cut into vectors of
// strings, numbers printed by the C library (in the C locale).

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <quor/generic/convert/ltoa.hpp>
#include <quor/strings/split_string.hpp>

namespace reference {

namespace quor = QUOR_2_9;

using strings_t = std::vector<std::string>;

inline std::string const failed = "-0";

inline strings_t elements(std::string const &format) {
	return quor::strings::split_string(format, std::string("\x01"), 0);
}

// The index of the first keyword that begins with the token, or -1.
inline int keyword(std::string const &token, strings_t const &keywords) {
	for (std::size_t i = 0; i != keywords.size(); ++i) {
		if (keywords[i].compare(0, token.size(), token) == 0) {
			return static_cast<int>(i);
		}
	}
	return -1;
}

inline int number(std::string const &token) {
	double const value = std::strtod(token.substr(0, token.find_first_of("xXeE.nN")).c_str(), nullptr);
	return value > 2147483647.0 ? 2147483647 : value < -2147483648.0 ? -2147483647 - 1 : static_cast<int>(value);
}

inline std::string print(char const *conversion, double value) {
	std::string text(static_cast<std::size_t>(std::snprintf(nullptr, 0, conversion, value)) + 1, '\0');
	std::snprintf(text.data(), text.size(), conversion, value);
	text.pop_back();
	return text;
}

inline std::string fixed(double value, int precision) {
	if (precision < 0 || precision > 1000 || !std::isfinite(value)) {
		return std::string();
	}
	std::string const text = print(("%." + std::to_string(precision) + "f").c_str(), value);
	return text.size() > 63 ? std::string() : text;
}

inline std::string digits(long long value, unsigned int radix) {
	char buffer[80];
	quor::generic::convert::lltoa(value, buffer, radix);
	return buffer;
}

inline std::string format_int(long long value, std::string const &format) {
	strings_t const list = elements(format);
	if (list.size() % 2 != 0) {
		return failed;
	}
	long long radix = 10;
	long long prefix_width = 0;
	bool spaced = false;
	long long fieldsize = 0;
	for (std::size_t i = 0; i != list.size(); i += 2) {
		int const key = keyword(list[i], {"base", "fieldsize"});
		if (key == 1) {
			fieldsize = number(list[i + 1]);
		}
		int const base = key == 0 ? keyword(list[i + 1], {"dec", "default", "spaced_dec", "hex", "oct", "bin"}) : 0;
		if (key == -1 || base == -1) {
			return failed;
		}
		if (key == 0) {
			radix = base <= 2 ? 10 : base == 3 ? 16 : base == 4 ? 8 : 2;
			spaced = spaced || base == 2;
			prefix_width = base <= 2 ? prefix_width : base == 3 ? 2 : 1;
		}
	}
	bool const negative = value < 0;
	if (negative && radix != 10) {
		unsigned long long power = 1;
		long long n = 0;
		for (long long rest = value; rest != 0; rest /= radix) {
			power *= static_cast<unsigned long long>(radix);
			++n;
		}
		auto const more = [&] {
			power *= static_cast<unsigned long long>(radix);
			++n;
		};
		if (fieldsize == 0) {
			long long const sum = static_cast<long long>(static_cast<unsigned long long>(value) + power);
			if (sum > 0 && value < -(static_cast<long long>(power) / 2)) {
				more();
			}
			while (radix == 16 && n % 4 != 0) {
				more();
			}
		}
		// 70 digits of any of these radices wrap the power to 0.
		while (fieldsize != 0 && n < fieldsize - prefix_width && n < 70) {
			more();
		}
		value = static_cast<long long>(static_cast<unsigned long long>(value) + power);
	}
	std::string text = digits(value, static_cast<unsigned int>(radix));
	if (text.size() > 63) {
		return failed;
	}
	long long const len = static_cast<long long>(text.size());
	long long extra = prefix_width;
	if (spaced) {
		extra = negative ? (len - 2) / 3 : (len - 1) / 3;
	}
	if (fieldsize != 0 && fieldsize < len + extra) {
		return failed;
	}
	std::string result = radix == 8 ? "o" : radix == 16 ? "0x" : "";
	if (!negative && radix != 10) {
		if (fieldsize == 0 && radix == 16) {
			for (long long count = len; count % 4 != 0; ++count) {
				result += "0";
			}
		} else if (extra + len < fieldsize) {
			if (fieldsize - extra - len > 65535) {
				return failed;
			}
			result += std::string(static_cast<std::size_t>(fieldsize - extra - len), '0');
		}
	}
	if (spaced) {
		if (text[0] == '-') {
			text.erase(0, 1);
		}
		for (std::size_t at = text.size(); at > 3; at -= 3) {
			text.insert(at - 3, 1, ' ');
		}
		text = (negative ? "-" : "") + text;
	}
	return result + text + (radix == 2 ? "b" : "");
}

inline std::string format_double(double value, std::string const &format) {
	strings_t const list = elements(format);
	if (list.size() % 2 != 0) {
		return failed;
	}
	int precision = 2;
	int fieldsize = 0;
	for (std::size_t i = 0; i != list.size(); i += 2) {
		int const key = keyword(list[i], {"precision", "fieldsize"});
		if (key == -1) {
			return failed;
		}
		(key == 0 ? precision : fieldsize) = number(list[i + 1]);
	}
	if (precision < 0 || precision > 100 || fieldsize < 0 || fieldsize > 63 || !std::isfinite(value)) {
		return failed;
	}
	std::string const width = std::to_string(fieldsize) + "." + std::to_string(precision);
	std::string text = print(
	    fieldsize == 0 ? ("%-32." + std::to_string(precision) + "f").c_str() : ("%" + width + "f").c_str(), value);
	if (fieldsize == 0) {
		text.erase(text.find_last_not_of(' ') + 1);
		return text.size() > 63 ? failed : text;
	}
	if (text.size() <= static_cast<std::size_t>(fieldsize)) {
		return text;
	}
	// The exponent with three digits first, filled up to the width.
	text = print(("%." + std::to_string(precision) + "e").c_str(), value);
	std::size_t const exponent = text.find('e') + 2;
	if (text.size() - exponent == 2) {
		text.insert(exponent, 1, '0');
	}
	if (text.size() > 63) {
		return failed;
	}
	while (text.size() < static_cast<std::size_t>(fieldsize)) {
		text.insert(0, 1, ' ');
	}
	text.erase(text.find('e') + 2, 1);
	if (text.size() < static_cast<std::size_t>(fieldsize)) {
		text.insert(0, 1, ' ');
	}
	return text.substr(0, static_cast<std::size_t>(fieldsize));
}

inline std::string format_duration(double seconds, std::string const &format) {
	strings_t const list = elements(format);
	if (list.size() % 2 != 0) {
		return failed;
	}
	std::string precision = "2";
	bool short_form = false;
	for (std::size_t i = 0; i != list.size(); i += 2) {
		int const key = keyword(list[i], {"precision", "short_form"});
		int const flag = key == 1 ? keyword(list[i + 1], {"true", "false"}) : 0;
		if (key == -1 || flag == -1) {
			return failed;
		}
		if (key == 0) {
			precision = list[i + 1];
		} else {
			short_form = flag == 0;
		}
	}
	if (std::isnan(seconds) || std::trunc(seconds) < -2147483648.0 || std::trunc(seconds) > 2147483647.0) {
		return failed;
	}
	int const days = static_cast<int>(seconds) / 86400;
	double rest = seconds - days * 86400;
	int const hours = static_cast<int>(rest) / 3600;
	rest -= hours * 3600;
	int const minutes = static_cast<int>(rest) / 60;
	rest -= minutes * 60;
	std::string text;
	if (days != 0) {
		text += std::to_string(days) + (short_form ? "d " : " dy ");
	}
	if (!text.empty() || hours != 0) {
		text += std::to_string(hours) + (short_form ? "h " : " hr ");
	}
	if (!text.empty() || minutes != 0) {
		text += std::to_string(minutes) + (short_form ? "m " : " min ");
	}
	return text + format_double(rest, "prec\x01" + precision) + (short_form ? "s" : " sec");
}

inline int memory_unit(std::string const &token) {
	if (token == "B") {
		return 0;
	}
	std::string const letters = " KMGTPEZY";
	if (token.size() < 2 || token[1] != 'B' || token[0] == ' ' || letters.find(token[0]) == std::string::npos) {
		return -1;
	}
	return static_cast<int>(letters.find(token[0]));
}

inline std::string format_memory(unsigned long long value, std::string const &format, std::string &unit) {
	unit.clear();
	strings_t const list = elements(format);
	if (list.size() % 2 != 0) {
		return failed;
	}
	int base = 0;
	int target = -1;
	for (std::size_t i = 0; i != list.size(); i += 2) {
		int const key = keyword(list[i], {"target_unit", "base_unit"});
		int const index = list[i].empty() ? 0 : memory_unit(list[i + 1]);
		if (key == -1 || index == -1) {
			return failed;
		}
		(key == 0 ? target : base) = index;
	}
	int index = base;
	if (target == -1) {
		for (; value >= 1024; ++index) {
			value /= 1024;
		}
	} else {
		for (int step = base; step < target; ++step) {
			value /= 1024;
		}
		value = target < base ? 0 : value;
		index = target;
	}
	if (index > 8) {
		return failed;
	}
	unit = index == 0 ? "B" : std::string(1, " KMGTPEZY"[index]) + "B";
	return std::to_string(value);
}

inline strings_t const &metric_short_units() {
	static strings_t const units = {"a", "f", "p", "n", "mc", "m", "", "k", "M", "G", "T", "P", "E", "Z", "Y"};
	return units;
}

inline strings_t const &metric_long_units() {
	static strings_t const units = {"atto", "femto", "pico", "nano", "micro", "milli", "",     "kilo",
	                                "mega", "giga",  "tera", "peta", "exa",   "zetta", "yotta"};
	return units;
}

// 6 above the index of the unit, or -1.
inline int metric_unit(std::string const &token) {
	if (keyword(token, {"base"}) == 0) {
		return 6;
	}
	strings_t const &units = metric_short_units();
	for (std::size_t i = 0; i != units.size(); ++i) {
		if (units[i] == token) {
			return static_cast<int>(i);
		}
	}
	return -1;
}

inline std::string format_metric(unsigned int value, std::string const &format, std::string &unit) {
	unit.clear();
	strings_t const list = elements(format);
	if (list.size() % 2 != 0) {
		return failed;
	}
	int base = 6;
	int target = -1;
	bool short_form = true;
	int precision = 3;
	for (std::size_t i = 0; i != list.size(); i += 2) {
		int const key = keyword(list[i], {"base_unit", "target_unit", "short_form", "precision"});
		int const word = key == 2 ? keyword(list[i + 1], {"true", "false"}) : key == 3 ? 0 : metric_unit(list[i + 1]);
		if (key == -1 || word == -1) {
			return failed;
		}
		if (key == 3) {
			precision = number(list[i + 1]);
		} else if (key == 2) {
			short_form = word == 0;
		} else {
			(key == 0 ? base : target) = word;
		}
	}
	double d = value;
	int index = base;
	if (target == -1) {
		while (value > 999 && index < 10) {
			d /= 1000.0;
			value /= 1000;
			++index;
		}
	} else {
		for (int step = base; step < target; ++step) {
			d /= 1000.0;
		}
		for (int step = base; step > target; --step) {
			d *= 1000.0;
		}
		index = target;
	}
	std::string const text = fixed(d, precision);
	if (text.empty()) {
		return failed;
	}
	unit = (short_form ? metric_short_units() : metric_long_units())[static_cast<std::size_t>(index)];
	return text;
}

} // namespace reference

#endif
