#ifndef QUOR_TESTS_SUPPORT_C_LOCALE_HPP
#define QUOR_TESTS_SUPPORT_C_LOCALE_HPP

// Sets the encoding of the process's C locale, that of an installed locale, for the life
// of an object.
//
//     quor_test::c_locale const utf8("C.UTF-8");
//     if (!utf8.is_set()) { ... }                 // the machine has no such locale

#include <clocale>
#include <string>

namespace quor_test {

class c_locale {
public:
	explicit c_locale(std::string const &name)
	    : m_previous(std::setlocale(LC_CTYPE, nullptr)), m_is_set(std::setlocale(LC_CTYPE, name.c_str()) != nullptr) {}
	~c_locale() { std::setlocale(LC_CTYPE, m_previous.c_str()); }
	c_locale(c_locale const &) = delete;
	c_locale &operator=(c_locale const &) = delete;

	bool is_set() const { return m_is_set; }

private:
	std::string m_previous;
	bool m_is_set;
};

} // namespace quor_test

#endif
