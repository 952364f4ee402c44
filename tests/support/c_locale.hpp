#ifndef QUOR_TESTS_SUPPORT_C_LOCALE_HPP
#define QUOR_TESTS_SUPPORT_C_LOCALE_HPP

// Sets the encoding of the process's C locale for the life of an object: that of an
// installed locale, or of one that is made for the test.
//
//     quor_test::c_locale const utf8("C.UTF-8");
//     quor_test::made_locale const latin("ISO-8859-1", "en_US");   // encoding, letters
//     if (!latin.is_set()) { ... }                                 // the machine can't make it

#include <clocale>
#include <cstdlib>
#include <string>

#include "support/temporary_directory.hpp"

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

class made_locale {
public:
	explicit made_locale(std::string const &charset, std::string const &rules = "C")
	    : m_path(make(m_directory, charset, rules)), m_locale("made") {}
	~made_locale() { ::unsetenv("LOCPATH"); }
	made_locale(made_locale const &) = delete;
	made_locale &operator=(made_locale const &) = delete;

	bool is_set() const { return m_path && m_locale.is_set(); }

private:
	static bool make(temporary_directory const &directory, std::string const &charset, std::string const &rules) {
		std::string const command = "localedef --quiet --no-archive -i " + rules + " -f " + charset + " '" +
		                            (directory.root() / "made").string() + "' 2>&1";
		bool const made = std::system(command.c_str()) == 0;
		return ::setenv("LOCPATH", directory.root().c_str(), 1) == 0 && made;
	}

	temporary_directory m_directory;
	bool m_path;
	c_locale m_locale;
};

} // namespace quor_test

#endif
