#ifndef QUOR_TESTS_SUPPORT_COMMA_LOCALE_HPP
#define QUOR_TESTS_SUPPORT_COMMA_LOCALE_HPP

// Sets a locale in which a number has a decimal comma and groups of three digits, for
// the life of an object: for C++ always, by a facet of its own, and for the C functions
// where the machine has such a locale.

#include <clocale>
#include <locale>
#include <string>

namespace quor_test {

class comma_punctuation : public std::numpunct<char> {
protected:
	char do_decimal_point() const override { return ','; }
	char do_thousands_sep() const override { return '.'; }
	std::string do_grouping() const override { return "\3"; }
};

class comma_locale {
public:
	comma_locale()
	    : m_c_locale(std::setlocale(LC_ALL, nullptr)),
	      m_previous(std::locale::global(std::locale(std::locale::classic(), new comma_punctuation))) {
		for (char const *const name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8", "German"}) {
			if (std::setlocale(LC_ALL, name) != nullptr) {
				break;
			}
		}
	}
	~comma_locale() {
		std::locale::global(m_previous);
		std::setlocale(LC_ALL, m_c_locale.c_str());
	}
	comma_locale(comma_locale const &) = delete;
	comma_locale &operator=(comma_locale const &) = delete;

private:
	std::string m_c_locale;
	std::locale m_previous;
};

} // namespace quor_test

#endif
