// Blocks of bytes, in a word and in a vector: each answer agrees with a look at each byte.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "kernels/kernels.hpp"

namespace {

namespace kernels = QUOR_2_9::kernels;

// What the bits of a mask tell of the bytes.
template <class Block>
std::vector<bool> told(typename Block::mask mask) {
	std::vector<bool> bytes(Block::size);
	for (; mask != 0; mask &= mask - 1) {
		bytes.at(Block::position(mask)) = true;
	}
	return bytes;
}

template <class Block, class Test>
std::vector<bool> looked_at(std::string const &bytes, Test test) {
	std::vector<bool> result(Block::size);
	std::transform(bytes.begin(), bytes.begin() + Block::size, result.begin(), test);
	return result;
}

template <class Block>
void compare(std::string const &bytes) {
	if constexpr (!kernels::blocks_work) {
		return; // Words that begin with their highest byte are not used.
	}
	Block const block(bytes.data());
	for (char const c : {'<', '&', '"', ' ', '\0', '\x7F', '\x80', '\xFF'}) {
		auto const equal = looked_at<Block>(bytes, [c](char byte) { return byte == c; });
		ASSERT_EQ(told<Block>(block.equal_to(c)), equal) << int{c};
	}
	for (char const last : {'\0', '\t', ' ', 'a', '\x7E', '\x7F'}) {
		auto const few = looked_at<Block>(
		    bytes, [last](char byte) { return static_cast<unsigned char>(byte) <= static_cast<unsigned char>(last); });
		ASSERT_EQ(told<Block>(block.up_to(last)), few) << int{last};
	}
	auto in_front = looked_at<Block>(bytes, [](char byte) { return byte == '<'; });
	std::rotate(in_front.begin(), in_front.begin() + 1, in_front.end());
	in_front.back() = false;
	ASSERT_EQ(told<Block>(Block::moved(block.equal_to('<'))), in_front);
}

template <class Block>
class blocks : public testing::Test {};

#ifdef __SSE2__
using kinds = testing::Types<kernels::byte_word, kernels::byte_vector>;
#else
using kinds = testing::Types<kernels::byte_word>;
#endif
TYPED_TEST_SUITE(blocks, kinds, );

TYPED_TEST(blocks, every_byte_at_every_place_is_told) {
	for (std::size_t place = 0; place != TypeParam::size; ++place) {
		for (int value = 0; value != 256; ++value) {
			std::string bytes(TypeParam::size, 'n');
			bytes[place] = static_cast<char>(value);
			compare<TypeParam>(bytes);
			// Beside one that is told already.
			bytes[place == 0 ? 1 : place - 1] = '<';
			compare<TypeParam>(bytes);
		}
	}
}

TYPED_TEST(blocks, random_bytes_are_told) {
	std::mt19937 random(16);
	std::string const often = "<<<&&\"  \t\n\x01\x80\xBC";
	for (int round = 0; round != 20000; ++round) {
		std::string bytes(TypeParam::size, ' ');
		for (char &byte : bytes) {
			byte = random() % 2 == 0 ? often[random() % often.size()] : static_cast<char>(random() % 256);
		}
		compare<TypeParam>(bytes);
	}
}

} // namespace
