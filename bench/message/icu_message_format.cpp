// ICU's MessageFormat, parsed once and kept. It gives UTF-16 and is not asked for more.

#include <memory>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

#include <unicode/fmtable.h>
#include <unicode/msgfmt.h>
#include <unicode/unistr.h>

#include "message/competition.hpp"

namespace message_bench {
namespace {

void check(UErrorCode error) {
	if (U_FAILURE(error)) {
		throw std::runtime_error(u_errorName(error));
	}
}

struct icu_arguments {
	icu::UnicodeString names[3];
	icu::Formattable values[3];
};

class icu_store {
public:
	explicit icu_store(std::vector<sample> const &samples) {
		for (sample const &one : samples) {
			UErrorCode error = U_ZERO_ERROR;
			std::string const pattern =
			    pattern_with(one.pattern, "{name}", "{count,number,integer}", "{seconds,number,0.00}");
			m_formats[one.key] = std::make_unique<icu::MessageFormat>(icu::UnicodeString::fromUTF8(pattern),
			                                                          icu::Locale::getEnglish(), error);
			check(error);
		}
	}

	static std::shared_ptr<icu_arguments const> arguments(sample const &one) {
		auto result = std::make_shared<icu_arguments>();
		result->names[0] = icu::UnicodeString(u"name");
		result->names[1] = icu::UnicodeString(u"count");
		result->names[2] = icu::UnicodeString(u"seconds");
		result->values[0].setString(icu::UnicodeString::fromUTF8(one.name));
		result->values[1].setLong(one.count);
		result->values[2].setDouble(one.seconds);
		return result;
	}

	icu::UnicodeString render(char const *key, std::shared_ptr<icu_arguments const> const &arguments) const {
		UErrorCode error = U_ZERO_ERROR;
		icu::UnicodeString result;
		m_formats.find(key)->second->format(arguments->names, arguments->values, 3, result, error);
		check(error);
		return result;
	}

	static std::string plain(icu::UnicodeString const &text) {
		std::string result;
		return text.toUTF8String(result);
	}

private:
	std::unordered_map<std::string, std::unique_ptr<icu::MessageFormat>> m_formats;
};

void describe() {
	compete<icu_store>("ICU");
}

bench::entry const added(&describe);

} // namespace
} // namespace message_bench
