#ifndef ADDRESS_BOOK_RECORDS_HPP
#define ADDRESS_BOOK_RECORDS_HPP

#include <optional>
#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace address_book {

struct phone {
	std::string kind;
	std::string number;
};

struct place {
	std::string street;
	std::string town;
	double latitude = 0;
	double longitude = 0;
	float height = 0; // metres above the sea
};

struct person {
	std::string name;
	short born = 0;       // a year
	signed char zone = 0; // quarters of an hour ahead of UTC
	bool favourite = false;
	quor::types::int64 met = 0; // microseconds since 1970
	std::string note;           // any bytes
	std::vector<phone> phones;
	std::optional<place> home;
};

using book = std::vector<person>;

/// The book that comes with the program.
book sample();

/// Writes a book to the standard output, for people.
void list(book const &all);

} // namespace address_book

#endif
