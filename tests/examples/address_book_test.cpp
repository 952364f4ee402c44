// What the address book does with files that were damaged on their way.

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <quor/quor.hpp>

#include "address_book/formats.hpp"
#include "address_book/records.hpp"

namespace {

using address_book::book;
using quor::serialization::labeled_text_buffer;
using quor::serialization::serialize_binary_buf;
using quor::serialization::serialize_text_buf;

template <class Buffer>
std::string store_as(book const &from) {
	Buffer out;
	store(from, out);
	return out.as_str();
}

std::string golden(std::string const &format) {
	std::ifstream file(QUOR_BOOKS_DIR "/pellwick." + format, std::ios::binary);
	return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

template <class Buffer>
struct named_format;
template <>
struct named_format<serialize_binary_buf> {
	static constexpr char const *name = "binary";
};
template <>
struct named_format<serialize_text_buf> {
	static constexpr char const *name = "text";
};
template <>
struct named_format<labeled_text_buffer> {
	static constexpr char const *name = "labeled";
};

template <class Buffer>
class address_book_format : public testing::Test {
protected:
	std::string const bytes = golden(named_format<Buffer>::name);

	enum class outcome { refused, same, other };

	/// Reads a book that may be anything.
	outcome load(std::string const &from) {
		book found;
		try {
			found = address_book::load_book(Buffer(from));
		} catch (std::runtime_error const &) {
			return outcome::refused;
		}
		// Numbers of records and phones are promises; no more is taken than bytes are there.
		std::size_t parts = found.size();
		for (auto const &each : found) {
			parts += each.phones.size();
		}
		EXPECT_LE(parts, from.size());
		return store_as<Buffer>(found) == bytes ? outcome::same : outcome::other;
	}
};

using formats = testing::Types<serialize_binary_buf, serialize_text_buf, labeled_text_buffer>;
TYPED_TEST_SUITE(address_book_format, formats);

TYPED_TEST(address_book_format, golden_file_is_the_sample) {
	EXPECT_EQ(this->bytes, store_as<TypeParam>(address_book::sample()));
	EXPECT_EQ(TestFixture::outcome::same, this->load(this->bytes));
}

// All but the last byte of text, the separator behind the closing mark, is missed.
TYPED_TEST(address_book_format, cut_at_every_byte_is_refused) {
	bool const has_separator = this->bytes.back() == '\x01';
	for (std::size_t size = 0; size != this->bytes.size(); ++size) {
		bool const whole = has_separator && size + 1 == this->bytes.size();
		ASSERT_EQ(whole ? TestFixture::outcome::same : TestFixture::outcome::refused,
		          this->load(this->bytes.substr(0, size)))
		    << size;
	}
}

// The book has no checksum, so that not every change is noticed; lengths are.
TYPED_TEST(address_book_format, every_changed_bit_is_read_to_an_end) {
	std::size_t refused = 0;
	for (std::size_t place = 0; place != this->bytes.size(); ++place) {
		for (int bit = 0; bit != 8; ++bit) {
			std::string changed = this->bytes;
			changed[place] = static_cast<char>(changed[place] ^ (1 << bit));
			SCOPED_TRACE(testing::Message() << "bit " << bit << " of byte " << place);
			refused += this->load(changed) == TestFixture::outcome::refused ? 1 : 0;
		}
	}
	EXPECT_GT(refused, 100u);
}

TYPED_TEST(address_book_format, every_missing_byte_is_read_to_an_end) {
	for (std::size_t place = 0; place != this->bytes.size(); ++place) {
		std::string changed = this->bytes;
		changed.erase(place, 1);
		SCOPED_TRACE(testing::Message() << "byte " << place);
		this->load(changed);
	}
}

TEST(address_book, formats_hold_the_same_records) {
	book const from_text = address_book::load_book(serialize_text_buf(golden("text")));
	book const from_labels = address_book::load_book(labeled_text_buffer(golden("labeled")));
	EXPECT_EQ(golden("binary"), store_as<serialize_binary_buf>(from_text));
	EXPECT_EQ(golden("binary"), store_as<serialize_binary_buf>(from_labels));
}

} // namespace
