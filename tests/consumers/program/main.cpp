// The program that every consumer project builds: a value from an inline class, calls
// into the library, an exception that crosses its border, a message that is rendered.

#include <iostream>
#include <vector>

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
	quor::generic::varg_list arguments;
	arguments.push_back("bytes", 2048);
	quor::i18n::message_t const message(std::vector<quor::i18n::message_item>{
	    quor::i18n::message_item("used "),
	    quor::i18n::message_item("bytes", quor::i18n::message_item::type_memory),
	    quor::i18n::message_item("bytes", quor::i18n::message_item::type_memory_unit),
	});
	std::cout << message.as_string(arguments) << '\n';
	return 0;
}
