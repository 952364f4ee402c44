// The program that every consumer project builds: a value from an inline class, calls
// into the library, an exception that crosses its border, a message that is rendered,
// and the library's static objects in the program's own static initialisers. In a static
// link nothing but their early initialisation puts them before these.

#include <iostream>
#include <vector>

#include <quor/quor.hpp>

namespace {

// Looks at the nil objects when it is made and when it is destroyed.
class early_user {
public:
	early_user() : m_count(found()) {
		// The timers' overhead has been measured by now and nobody will measure it again.
		quor::system::date_time::timer::overhead_microseconds(overhead);
	}
	~early_user() {
		if (found() != 5) {
			std::cout << "a nil object has gone too early\n";
		}
	}
	int count() const { return m_count; }
	static constexpr unsigned overhead = 4;

private:
	static int found() {
		using quor::types::nil;
		quor::generic::varg_list const list(5);
		return (list["missing"] == nil ? 1 : 0) + (list.size() == 1 ? 1 : 0) +
		       (quor::i18n::catalog_t().message("missing") == nil ? 1 : 0) +
		       (quor::i18n::message_catalogs().catalog("missing") == nil ? 1 : 0) +
		       (quor::i18n::message_catalogs().message("missing", "missing") == nil ? 1 : 0);
	}

	int m_count;
};

early_user const early;

} // namespace

int main() {
	std::cout << "early nil objects: " << early.count() << '\n';
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
	quor::system::date_time::date day(31, 12, 2023);
	day += 1;
	std::cout << day.day() << '.' << day.month() << '.' << day.year() << '\n';
	quor::system::date_time::timer watch;
	watch.start();
	std::cout << "timer runs: " << watch.is_timer_running() << ", overhead "
	          << quor::system::date_time::timer::overhead_microseconds() << '\n';
	return 0;
}
