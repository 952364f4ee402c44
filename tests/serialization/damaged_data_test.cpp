// Damaged data is read as the slow reading of the reference does: golden records cut at every
// byte and changed in every byte, random bytes, and random calls on random contents.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/serialization/serialize_binary_buf.hpp>
#include <quor/serialization/serialize_text_buf.hpp>

#include "serialization/golden_files.hpp"
#include "support/serialize_fields.hpp"

namespace {

using QUOR_2_9::serialization::serialize_binary_buf;
using QUOR_2_9::serialization::serialize_text_buf;
using quor_reference::binary_reference;
using quor_reference::field;
using quor_reference::field_type;
using quor_reference::text_reference;
using quor_test::append_field;
using quor_test::read_field;

template <class Buffer>
struct reference_of;
template <>
struct reference_of<serialize_binary_buf> {
	using type = binary_reference;
	static constexpr char const *record = "record.binary";
};
template <>
struct reference_of<serialize_text_buf> {
	using type = text_reference;
	static constexpr char const *record = "record.text";
};

template <class Buffer>
class damaged_data : public testing::Test {
protected:
	using reference = typename reference_of<Buffer>::type;

	// Reads the types and once more behind the end; false at the first difference.
	static bool agree(std::string const &bytes, std::vector<field_type> const &types) {
		Buffer buffer(bytes);
		reference expected;
		expected.contents = bytes;
		for (field_type const type : types) {
			if (read_field(buffer, type) != expected.read(type) || buffer.at_end() != expected.at_end()) {
				ADD_FAILURE() << "type " << static_cast<int>(type) << " in " << testing::PrintToString(bytes);
				return false;
			}
		}
		return true;
	}

	static std::vector<field_type> record_types() {
		std::vector<field_type> types;
		for (field const &value : quor_test::golden_record(0, "")) {
			types.push_back(value.type);
		}
		types.push_back(field_type::string);
		types.push_back(field_type::uint64);
		return types;
	}
};

using buffers = testing::Types<serialize_binary_buf, serialize_text_buf>;
TYPED_TEST_SUITE(damaged_data, buffers, );

TYPED_TEST(damaged_data, record_cut_at_every_byte_agrees_with_reference) {
	std::string const record = quor_test::golden_bytes(reference_of<TypeParam>::record);
	auto const types = this->record_types();
	for (std::size_t size = 0; size <= record.size(); ++size) {
		ASSERT_TRUE(this->agree(record.substr(0, size), types)) << size;
	}
}

TYPED_TEST(damaged_data, record_changed_in_every_byte_agrees_with_reference) {
	std::string const record = quor_test::golden_bytes(reference_of<TypeParam>::record);
	auto const types = this->record_types();
	for (std::size_t i = 0; i != record.size(); ++i) {
		std::string changed = record;
		for (int value = 0; value != 256; ++value) {
			changed[i] = static_cast<char>(static_cast<unsigned char>(value));
			ASSERT_TRUE(this->agree(changed, types)) << i << ' ' << value;
		}
	}
}

class random_numbers {
public:
	explicit random_numbers(std::uint32_t seed) : m_engine(seed) {}
	std::uint32_t operator()() { return static_cast<std::uint32_t>(m_engine()); }

private:
	std::mt19937 m_engine;
};

// Bytes of which fields are made, and some others.
std::string random_bytes(random_numbers &random) {
	static constexpr char likely_bytes[] = "\x01\x01\x01-+0123456789xXbO\\. ae\0\xFF\x80\t";
	static std::string const likely(likely_bytes, sizeof likely_bytes);
	std::string bytes;
	for (std::size_t count = random() % 24; bytes.size() != count;) {
		std::uint32_t const which = random();
		bytes += which % 8 == 0 ? static_cast<char>(static_cast<unsigned char>(random() % 256))
		                        : likely[which / 8 % likely.size()];
	}
	return bytes;
}

TYPED_TEST(damaged_data, random_bytes_agree_with_reference) {
	random_numbers random(1);
	for (int i = 0; i != 100000; ++i) {
		std::vector<field_type> types;
		for (int count = 0; count != 6; ++count) {
			types.push_back(static_cast<field_type>(random() % quor_reference::field_types));
		}
		ASSERT_TRUE(this->agree(random_bytes(random), types)) << i;
	}
}

field random_field(random_numbers &random) {
	field value{static_cast<field_type>(random() % quor_reference::field_types)};
	std::uint64_t const bits = std::uint64_t(random()) << 32 | random();
	value.bits = bits >> random() % 64;
	value.bits = random() % 2 == 0 ? value.bits : 0 - value.bits;
	value.number =
	    std::ldexp(static_cast<double>(static_cast<std::int64_t>(bits)), static_cast<int>(random() % 200) - 150);
	value.precision = 17 + random() % 3;
	value.bytes = random_bytes(random);
	return value;
}

// Appends, reads, assignments and rewinding in any order. Appended values are read back.
TYPED_TEST(damaged_data, random_calls_agree_with_reference) {
	random_numbers random(2);
	for (int round = 0; round != 3000; ++round) {
		TypeParam buffer;
		typename reference_of<TypeParam>::type expected;
		for (int step = 0; step != 40; ++step) {
			std::uint32_t const which = random() % 20;
			if (which < 9) {
				field const value = random_field(random);
				append_field(buffer, value);
				expected.append(value);
			} else if (which < 17) {
				auto const type = static_cast<field_type>(random() % quor_reference::field_types);
				ASSERT_EQ(read_field(buffer, type), expected.read(type)) << round << ' ' << step;
			} else if (which == 17) {
				buffer.reset_read();
				expected.position = 0;
			} else if (which == 18) {
				expected.contents = random_bytes(random);
				buffer.assign(expected.contents);
			} else {
				field const own{field_type::buffer, 0, 0, 0, expected.contents};
				if (own.bytes.size() < 2000) {
					buffer.append_buffer(buffer);
					expected.append(own);
				}
			}
			ASSERT_EQ(buffer.as_str(), expected.contents) << round << ' ' << step;
			ASSERT_EQ(buffer.at_end(), expected.at_end()) << round << ' ' << step;
		}
	}
}

TYPED_TEST(damaged_data, random_values_are_read_back) {
	random_numbers random(3);
	for (int round = 0; round != 3000; ++round) {
		TypeParam buffer;
		std::vector<field> values;
		for (int count = 0; count != 20; ++count) {
			values.push_back(random_field(random));
			append_field(buffer, values.back());
		}
		// An empty nested buffer at the very end has no reading of its own in bytes.
		buffer.append_int8(1);
		for (field const &value : values) {
			ASSERT_EQ(read_field(buffer, value.type), quor_reference::text_of_field(value)) << round;
		}
		ASSERT_EQ(buffer.read_int8(), 1);
		ASSERT_TRUE(buffer.at_end());
	}
}

} // namespace
