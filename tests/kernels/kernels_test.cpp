#include "kernels/kernels.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <quor/quor.hpp>

#include "kernels/variants.hpp"
#include "reference/text.hpp"
#include "support/kernel_checks.hpp"

namespace {

namespace kernels = quor::kernels;

using quor_reference::number;
using quor_reference::numbers;
using quor_test::utf16_difference;
using quor_test::utf32_difference;
using quor_test::utf8_difference;

using difference_of = std::string (*)(numbers const &, std::size_t shift, std::size_t room);

// What a text is made of: pieces that may follow one another.
struct alphabet {
	char const *name;
	difference_of difference;
	std::vector<numbers> pieces;
	// Units that are malformed wherever they stand between pieces.
	numbers malformed;
};

std::vector<alphabet> const &alphabets() {
	static numbers const bad8{0x80, 0xBF, 0xF8, 0xFF, 0xC3, 0xE2, 0xF0};
	static numbers const bad16{0xD800, 0xDBFF, 0xDC00, 0xDFFF};
	static numbers const bad32{0xD800, 0xDFFF, 0x110000, 0xFFFFFFFF, 0x80000041, 0x1D800};
	static std::vector<alphabet> const all{
	    {"ASCII", &utf8_difference, {{'a'}, {0}, {0x7F}}, bad8},
	    {"Latin",
	     &utf8_difference,
	     {{'a'}, {'b'}, {'c'}, {' '}, {'d'}, {'e'}, {'f'}, {'g'}, {0xC3, 0xA9}, {0xC0, 0x80}},
	     bad8},
	    {"Cyrillic", &utf8_difference, {{0xD1, 0x81}, {0xDF, 0xBF}, {0xC2, 0x80}, {' '}}, bad8},
	    {"CJK", &utf8_difference, {{0xE6, 0xBC, 0xA2}, {0xE3, 0x80, 0x82}, {0xEF, 0xBF, 0xBF}}, bad8},
	    {"mixed",
	     &utf8_difference,
	     {{'a'}, {'b', 'c', 'd'}, {0xC3, 0xA9}, {0xE2, 0x82, 0xAC}, {0xED, 0xA0, 0x80}, {0xE0, 0x80, 0x80}},
	     bad8},
	    {"above U+FFFF",
	     &utf8_difference,
	     {{0xF0, 0x9F, 0x98, 0x80}, {0xF7, 0xBF, 0xBF, 0xBF}, {0xF0, 0x80, 0x80, 0x80}, {0xE2, 0x82, 0xAC}, {'a'}},
	     bad8},
	    {"UTF-16 ASCII", &utf16_difference, {{'a'}, {0}, {0x7F}}, bad16},
	    {"UTF-16 Latin", &utf16_difference, {{'a'}, {'b'}, {'c'}, {0x80}, {0x7FF}}, bad16},
	    {"UTF-16 mixed", &utf16_difference, {{'a'}, {0xE9}, {0x800}, {0xD7FF}, {0xE000}, {0xFFFF}, {0x8000}}, bad16},
	    {"UTF-16 pairs", &utf16_difference, {{'a'}, {0x20AC}, {0xD800, 0xDC00}, {0xDBFF, 0xDFFF}}, bad16},
	    {"UTF-32 ASCII", &utf32_difference, {{'a'}, {0}, {0x7F}}, bad32},
	    {"UTF-32 Latin", &utf32_difference, {{'a'}, {'b'}, {'c'}, {0x80}, {0x7FF}}, bad32},
	    {"UTF-32 mixed", &utf32_difference, {{'a'}, {0xE9}, {0x800}, {0xD7FF}, {0xE000}, {0xFFFE}, {0x8000}}, bad32},
	    {"UTF-32 above", &utf32_difference, {{'a'}, {0x20AC}, {0xFFFF}, {0x10000}, {0x10FFFF}}, bad32},
	};
	return all;
}

// A text of exactly `size` units.
numbers text_of_size(std::mt19937 &random, alphabet const &of, std::size_t size) {
	numbers text;
	while (text.size() != size) {
		numbers const &piece = of.pieces[random() % of.pieces.size()];
		if (text.size() + piece.size() <= size) {
			text.insert(text.end(), piece.begin(), piece.end());
		} else {
			text.push_back('.');
		}
	}
	return text;
}

TEST(kernels, every_length_and_shift_agrees_with_the_slow_rules) {
	std::mt19937 random(1);
	for (alphabet const &of : alphabets()) {
		for (std::size_t size = 0; size <= 300; ++size) {
			numbers const text = text_of_size(random, of, size);
			for (std::size_t const room : {kernels::least_room, std::size_t(1500)}) {
				ASSERT_EQ(of.difference(text, size % 37, room), "") << of.name;
			}
		}
		for (std::size_t shift = 0; shift != 64; ++shift) {
			ASSERT_EQ(of.difference(text_of_size(random, of, 150), shift, 1000), "") << of.name;
		}
	}
}

TEST(kernels, malformed_units_at_every_place_agree_with_the_slow_rules) {
	std::mt19937 random(2);
	for (alphabet const &of : alphabets()) {
		for (std::size_t const size : {std::size_t(1), std::size_t(20), std::size_t(70), std::size_t(200)}) {
			numbers const text = text_of_size(random, of, size);
			for (std::size_t at = 0; at != size; ++at) {
				numbers broken = text;
				broken[at] = of.malformed[(at + size) % of.malformed.size()];
				ASSERT_EQ(of.difference(broken, at % 5, 1000), "") << of.name << ' ' << at;
				broken = text;
				broken.insert(broken.begin() + static_cast<std::ptrdiff_t>(at), of.malformed[at % of.malformed.size()]);
				ASSERT_EQ(of.difference(broken, 0, 1000), "") << of.name << ' ' << at;
			}
		}
	}
}

TEST(kernels, a_text_cut_anywhere_agrees_with_the_slow_rules) {
	std::mt19937 random(3);
	for (alphabet const &of : alphabets()) {
		numbers const text = text_of_size(random, of, 160);
		for (std::size_t size = 0; size != text.size(); ++size) {
			ASSERT_EQ(of.difference(numbers(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(size)), 1, 1000),
			          "")
			    << of.name;
		}
	}
}

TEST(kernels, every_room_agrees_with_the_slow_rules) {
	std::mt19937 random(4);
	for (alphabet const &of : alphabets()) {
		numbers const text = text_of_size(random, of, 700);
		for (std::size_t room = kernels::least_room; room != kernels::least_room + 150; ++room) {
			ASSERT_EQ(of.difference(text, 0, room), "") << of.name << ' ' << room;
		}
	}
}

TEST(kernels, random_units_agree_with_the_slow_rules) {
	std::mt19937 random(5);
	for (int i = 0; i != 3000; ++i) {
		numbers text;
		for (std::size_t size = random() % 90; size != 0; --size) {
			text.push_back(static_cast<number>(random()));
		}
		numbers bytes = text;
		std::transform(text.begin(), text.end(), bytes.begin(), [](number unit) { return unit % 256; });
		ASSERT_EQ(utf8_difference(bytes, 0, 500), "");
		std::transform(text.begin(), text.end(), bytes.begin(), [](number unit) { return unit % 0x10000; });
		ASSERT_EQ(utf16_difference(bytes, 0, 500), "");
		std::transform(text.begin(), text.end(), bytes.begin(), [](number unit) { return unit % 0x110800; });
		ASSERT_EQ(utf32_difference(bytes, 0, 500), "");
		ASSERT_EQ(utf32_difference(text, 0, 500), "");
	}
}

TEST(kernels, alphabets_joined_at_random_agree_with_the_slow_rules) {
	std::mt19937 random(6);
	for (difference_of const difference : {&utf8_difference, &utf16_difference, &utf32_difference}) {
		std::vector<alphabet> of;
		std::copy_if(alphabets().begin(), alphabets().end(), std::back_inserter(of),
		             [difference](alphabet const &one) { return one.difference == difference; });
		for (int i = 0; i != 500; ++i) {
			numbers text;
			while (text.size() < 600) {
				numbers const part = text_of_size(random, of[random() % of.size()], random() % 150);
				text.insert(text.end(), part.begin(), part.end());
			}
			ASSERT_EQ(difference(text, random() % 32, 300), "");
		}
	}
}

TEST(kernels, too_little_room_is_never_overrun) {
	std::mt19937 random(7);
	for (alphabet const &of : alphabets()) {
		numbers const text = text_of_size(random, of, 100);
		for (std::size_t room = 0; room != kernels::least_room; ++room) {
			// Whatever has been read is right, and the sanitizers watch the room.
			std::string const what = of.difference(text, 0, room);
			ASSERT_EQ(what.find("other units"), std::string::npos) << what;
		}
	}
}

TEST(kernels, the_chosen_variant_is_the_first_that_runs_here) {
	kernels::variant_list const all = kernels::all_variants();
	auto const *const first =
	    std::find_if(all.begin(), all.end(), [](kernels::variant const *one) { return one->runs_here(); });
	ASSERT_NE(first, all.end());
	EXPECT_EQ(&kernels::chosen_variant(), *first);
	EXPECT_TRUE((*(all.end() - 1))->runs_here());
	EXPECT_STREQ((*(all.end() - 1))->name, "portable");
}

TEST(kernels, can_be_chosen_by_many_threads_at_once) {
	std::vector<std::thread> threads;
	for (int i = 0; i != 8; ++i) {
		threads.emplace_back([] {
			EXPECT_EQ(quor::strings::utf8_to_utf16(quor::strings::ustring8(200, 'a')).size(), 200U);
			EXPECT_TRUE(kernels::chosen_variant().runs_here());
		});
	}
	for (std::thread &one : threads) {
		one.join();
	}
}

// Each of the following is the first call of its process where the tests run one by one.
template <class In, class Out>
void expect_converted(kernels::conversion<In, Out> kernel, In const *text) {
	Out units[kernels::least_room];
	EXPECT_EQ(kernel(text, 3, units, std::size(units)).written, 3U);
	EXPECT_EQ(units[0], static_cast<Out>('a'));
	EXPECT_EQ(units[2], static_cast<Out>('c'));
}

TEST(kernels, first_call_of_utf8_to_utf16_chooses) {
	expect_converted(&kernels::utf8_to_utf16, "abc");
}

TEST(kernels, first_call_of_utf8_to_utf32_chooses) {
	expect_converted(&kernels::utf8_to_utf32, "abc");
}

TEST(kernels, first_call_of_utf16_to_utf8_chooses) {
	expect_converted(&kernels::utf16_to_utf8, QUOR_W("abc"));
}

TEST(kernels, first_call_of_utf16_to_utf32_chooses) {
	expect_converted(&kernels::utf16_to_utf32, QUOR_W("abc"));
}

TEST(kernels, first_call_of_utf32_to_utf8_chooses) {
	expect_converted(&kernels::utf32_to_utf8, QUOR_U32("abc"));
}

TEST(kernels, first_call_of_utf32_to_utf16_chooses) {
	expect_converted(&kernels::utf32_to_utf16, QUOR_U32("abc"));
}

} // namespace
