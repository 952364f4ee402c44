#ifndef ADDRESS_BOOK_FORMATS_HPP
#define ADDRESS_BOOK_FORMATS_HPP

#include <quor/quor.hpp>

#include "records.hpp"

namespace address_book {

/// Stands in front of each book.
inline constexpr unsigned short current_version = 2;

/// Appends a book to a binary or a text buffer.
void store(book const &from, quor::serialization::serialize_buffer &out);

/// Reads what `store` appended.
/// @throws std::runtime_error when that isn't what the buffer holds.
book load_book(quor::serialization::serialize_buffer const &in);

/// Adds a book to an empty record.
void store(book const &from, quor::serialization::labeled_serialize_buffer &out);

/// Reads what `store` of this, an older or a newer program added.
/// @throws std::runtime_error when the record has nothing of a book.
book load_book(quor::serialization::labeled_serialize_buffer const &in);

} // namespace address_book

#endif
