#ifndef ADDRESS_BOOK_BYTES_HPP
#define ADDRESS_BOOK_BYTES_HPP

#include <string>

namespace address_book {

/// Writes bytes to the standard output, sixteen a line: the place, the bytes, and those that
/// are characters.
void print_dump(std::string const &bytes);

/// Writes bytes to the standard output as text: 0x01 as |, others that can't be seen, and |
/// and \ themselves, as \ and two digits.
void print_fields(std::string const &bytes);

} // namespace address_book

#endif
