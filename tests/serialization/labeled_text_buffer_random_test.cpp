// Random operations on labeled records, and on plain ones that answer for them.

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/quor.hpp>

#include "reference/labeled_record.hpp"
#include "support/labeled_records.hpp"

namespace {

using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor::types::nil;
using quor::types::variant;
using quor_reference::labeled_record;
using quor_test::difference;
using quor_test::hides_labels;
using quor_test::spelled;

class generator {
public:
	explicit generator(unsigned int seed) : m_random(seed) {}

	std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }

	// Few, so that labels meet often.
	std::string label() {
		static std::vector<std::string> const labels{"a",        " a ",  "b", "b\n",       "a b",
		                                             "\xC3\x84", "\x01", "",  "long label"};
		return labels[below(labels.size())];
	}

	variant value() {
		switch (below(6)) {
		case 0:
			return nil;
		case 1:
			return static_cast<int>(below(3)) - 1;
		case 2:
			return 0.5;
		case 3:
			return std::string(below(40), 'x');
		default:
			return label();
		}
	}

	// Something like the text of a record.
	std::string text(std::string valid) {
		static std::array<std::string, 8> const pieces{"\x01",
		                                               "-1\x01",
		                                               " ",
		                                               "0",
		                                               "1\x01"
		                                               "a\x01",
		                                               "9",
		                                               "\x01\x01",
		                                               "-"};
		for (std::size_t changes = below(4); changes != 0 && !valid.empty(); --changes) {
			std::size_t const place = below(valid.size());
			switch (below(4)) {
			case 0:
				valid.erase(place, 1 + below(3));
				break;
			case 1:
				valid.insert(place, pieces[below(pieces.size())]);
				break;
			case 2:
				valid[place] = static_cast<char>(below(256));
				break;
			default:
				valid.insert(place, valid.substr(below(valid.size()), 10));
				break;
			}
		}
		return valid;
	}

private:
	std::mt19937 m_random;
};

// A record of ours and a plain one that are to be alike.
struct records {
	labeled_text_buffer ours;
	labeled_record plain;
};

// A group that both have, or the records themselves.
struct place {
	labeled_text_buffer *ours;
	labeled_record *plain;
};

place random_place(records &both, generator &random) {
	place result{&both.ours, &both.plain};
	while (random.below(2) == 0) {
		std::string const label = labeled_record::stripped(random.label());
		labeled_serialize_buffer *const group = result.ours->retrieve_group(label);
		auto *const entry = result.plain->find(label);
		EXPECT_EQ(group == nullptr, entry == nullptr);
		if (group != nullptr && entry != nullptr) {
			result = {dynamic_cast<labeled_text_buffer *>(group), &entry->group};
		}
	}
	return result;
}

// The text may be one that the record itself gave.
void assign_text(place const &target, std::string const &text) {
	target.plain->assign(text);
	target.ours->assign(text);
}

// One random change of the first, with the second as another record at hand.
void change(records &both, records &other, generator &random) {
	place const target = random_place(both, random);
	place const source = random_place(random.below(2) == 0 ? both : other, random);
	labeled_record const plain_source = *source.plain;
	std::string const label = random.label();
	switch (random.below(9)) {
	case 0:
		target.ours->create_group(label);
		target.plain->create_group(label);
		break;
	case 1:
		target.ours->overlay(*source.ours);
		target.plain->overlay(plain_source);
		break;
	case 2:
		target.ours->assign(*source.ours);
		*target.plain = plain_source;
		break;
	case 3:
		assign_text(target, random.text(source.plain->as_str()));
		break;
	case 4:
		if (target.ours != source.ours) {
			target.ours->assign(static_cast<labeled_serialize_buffer const &>(*source.ours));
			target.plain->assign(plain_source.as_str());
		}
		break;
	case 5:
		assign_text(target, source.ours->as_str());
		break;
	default: {
		variant const value = random.value();
		bool const replaced = target.ours->add_value(label, value) == labeled_serialize_buffer::value_replaced;
		EXPECT_EQ(replaced, target.plain->add_value(label, value));
		break;
	}
	}
}

TEST(labeled_text_random, operations_agree_with_a_plain_record) {
	generator random(20240918);
	std::size_t groups = 0;
	for (int round = 0; round != 300; ++round) {
		records both;
		records other;
		for (int step = 0; step != 60; ++step) {
			change(both, other, random);
			change(other, both, random);
			ASSERT_EQ(difference(both.plain, both.ours), "") << "round " << round << ", step " << step;
			// What has grown too large is written down too often.
			if (both.ours.as_str().size() + other.ours.as_str().size() > 4000) {
				break;
			}
		}
		ASSERT_EQ(difference(other.plain, other.ours), "") << "round " << round;
		labeled_text_buffer const copy(both.ours);
		ASSERT_EQ(difference(both.plain, copy), "") << "round " << round;
		groups += both.ours.has_group("a") ? 1U : 0U;
	}
	EXPECT_GT(groups, 50U);
}

TEST(labeled_text_random, reading_and_writing_is_stable) {
	generator random(20240919);
	std::size_t stable = 0;
	for (int round = 0; round != 20000; ++round) {
		records both;
		for (std::size_t step = random.below(8); step != 0; --step) {
			place const target = random_place(both, random);
			std::string const label = random.label();
			std::string const inner = random.label();
			variant const value = random.value();
			target.ours->add_value(label, value);
			target.plain->add_value(label, value);
			target.ours->create_group(inner)->add_value(label, 1);
			target.plain->create_group(inner).add_value(label, 1);
		}
		std::string const text = random.text(both.ours.as_str());
		labeled_record plain;
		plain.assign(text);
		labeled_text_buffer const first(text);
		ASSERT_EQ(difference(plain, first), "") << spelled(text);
		if (!hides_labels(plain)) {
			labeled_text_buffer const second(first.as_str());
			ASSERT_EQ(first.as_str(), second.as_str()) << spelled(text);
			++stable;
		}
	}
	EXPECT_GT(stable, 5000U);
}

} // namespace
