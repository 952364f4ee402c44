#ifndef QUOR_TESTS_SUPPORT_MADE_LOCALE_HPP
#define QUOR_TESTS_SUPPORT_MADE_LOCALE_HPP

// Makes a C locale for the test, on POSIX systems, and sets its encoding for the life of an
// object.
//
//     quor_test::made_locale const latin("ISO-8859-1", "en_US");   // encoding, letters
//     if (!latin.is_set()) { ... }                                 // the machine can't make it

#include <cstdlib>
#include <string>

#include "support/c_locale.hpp"
#include "support/temporary_directory.hpp"

namespace quor_test {

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
