// The program that every consumer project builds: a value from an inline class, a call
// into the library, an exception that crosses the library's border.

#include <iostream>

#include <quor/quor.hpp>

int main() {
	quor::strings::ustring8 const name = quor::strings::ustring8("quor ") + "2.9";
	std::cout << name << '\n';
	std::cout << quor::generic::convert::str_to_int("0x2a", 0, 0, true) << '\n';
	try {
		quor::generic::convert::str_to_int("99999999999", 0, 10, true);
	} catch (quor::exceptions::overflow_error const &error) {
		std::cout << "overflow_error in " << error.error_state().function() << '\n';
	}
	return 0;
}
