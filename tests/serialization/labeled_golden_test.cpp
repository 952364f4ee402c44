// The text of labeled records byte by byte: what records write is what stands in the golden
// files, and what stands there is read back, on every target.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <quor/quor.hpp>

#include "reference/labeled_record.hpp"
#include "serialization/golden_files.hpp"
#include "support/comma_locale.hpp"
#include "support/labeled_records.hpp"

namespace {

using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor::types::nil;
using quor::types::variant;
using quor_test::difference;

struct named_value {
	std::string name;
	variant value;
};

template <class Number>
void add_limits(std::vector<named_value> &rows, std::string const &name) {
	using limits = std::numeric_limits<Number>;
	rows.push_back({name + " lowest", variant(limits::lowest())});
	rows.push_back({name + " above lowest", variant(static_cast<Number>(limits::lowest() + 1))});
	rows.push_back({name + " 0", variant(Number(0))});
	rows.push_back({name + " 65", variant(Number(65))});
	rows.push_back({name + " below highest", variant(static_cast<Number>(limits::max() - 1))});
	rows.push_back({name + " highest", variant(limits::max())});
}

template <class Number>
void add_floating(std::vector<named_value> &rows, std::string const &name) {
	constexpr double infinity = std::numeric_limits<double>::infinity();
	std::pair<char const *, double> const numbers[] = {
	    {"0", 0.0},
	    {"1", 1.0},
	    {"-1", -1.0},
	    {"0.1", 0.1},
	    {"0.025", 0.025},
	    {"100", 100.0},
	    {"10 nines", 9999999999.0},
	    {"11 nines", 99999999999.0},
	    {"1e10", 1e10},
	    {"1e-7", 1e-7},
	    {"123456.5", 123456.5},
	    {"1e30", 1e30},
	    {"infinity", infinity},
	    {"-infinity", -infinity},
	};
	for (auto const &[text, number] : numbers) {
		rows.push_back({name + ' ' + text, variant(static_cast<Number>(number))});
	}
}

// Values of each of the types that can be held.
std::vector<named_value> values() {
	std::vector<named_value> rows{{"nil", nil}, {"bool false", false}, {"bool true", true}};
	add_limits<signed char>(rows, "signed char");
	add_limits<unsigned char>(rows, "unsigned char");
	add_limits<short>(rows, "short");
	add_limits<unsigned short>(rows, "unsigned short");
	add_limits<int>(rows, "int");
	add_limits<unsigned int>(rows, "unsigned int");
	add_limits<quor::types::int64>(rows, "int64");
	add_limits<quor::types::uint64>(rows, "uint64");
	rows.push_back({"long lowest", quor::types::long_t(-2147483647 - 1)});
	rows.push_back({"long highest", quor::types::long_t(2147483647)});
	rows.push_back({"unsigned long highest", quor::types::ulong_t(4294967295U)});
	add_floating<float>(rows, "float");
	add_floating<double>(rows, "double");
	add_floating<long double>(rows, "long double");
	std::string const bytes("a\0\x01\xFF b\r\n", 8);
	rows.push_back({"string", bytes});
	rows.push_back({"string empty", std::string()});
	rows.push_back({"ustring8", quor::strings::ustring8("\xC3\x84")});
	rows.push_back({"ustring16", quor::strings::ustring16(QUOR_W("\u00C4\u20AC"))});
	rows.push_back({"ustring32", quor::strings::ustring32(QUOR_U32("\u00C4\u20AC"))});
	rows.push_back({"wide string", quor::types::wide_string(QUOR_W("\u00C4\u20AC"))});
	return rows;
}

struct named_record {
	std::string name;
	labeled_text_buffer record;
};

labeled_text_buffer nested(int depth) {
	labeled_text_buffer record;
	labeled_serialize_buffer *group = &record;
	for (int i = 0; i != depth; ++i) {
		group->add_value("depth", i);
		group = group->create_group("g");
	}
	group->add_value("depth", depth);
	return record;
}

// Records that are not about one value.
std::vector<named_record> records() {
	std::vector<named_record> rows;
	rows.push_back({"example", {}});
	rows.back().record.add_value("a", "1");
	rows.back().record.create_group("g")->add_value("b", "2");
	rows.push_back({"empty group", {}});
	rows.back().record.create_group("g");
	rows.push_back({"value and group", {}});
	rows.back().record.add_value("g", 1);
	rows.back().record.create_group("g")->add_value("b", 2);
	rows.push_back({"value and empty group", {}});
	rows.back().record.add_value("g", 1);
	rows.back().record.create_group("g");
	rows.push_back({"group of an empty group", {}});
	rows.back().record.create_group("g")->create_group("h");
	rows.push_back({"group without a name", {}});
	rows.back().record.create_group(" ")->add_value("b", 2);
	rows.push_back({"stripped", {}});
	rows.back().record.add_value(" \t\r\na b\n\r\t ", "v");
	rows.push_back({"nested", nested(12)});
	rows.push_back({"labels of every byte", {}});
	for (int byte = 0; byte != 256; ++byte) {
		rows.back().record.add_value(std::string("<") + static_cast<char>(byte) + '>', "");
	}
	rows.push_back({"a value of every byte", {}});
	std::string every;
	for (int byte = 0; byte != 256; ++byte) {
		every += static_cast<char>(byte);
	}
	rows.back().record.add_value("v", every);
	return rows;
}

// All rows: a value is that of the label "v".
std::vector<named_record> golden_records() {
	std::vector<named_record> rows = records();
	for (named_value const &one : values()) {
		rows.push_back({one.name, {}});
		rows.back().record.add_value("v", one.value);
	}
	return rows;
}

// A record of a few groups, all of whose bytes are replaced.
labeled_text_buffer golden_labeled_record() {
	labeled_text_buffer record;
	record.add_value("name", "Ada");
	record.add_value("born", 1815);
	record.add_value("share", 0.25);
	record.add_value("nothing", nil);
	labeled_serialize_buffer *const place = record.create_group("place");
	record.add_value("place", "London");
	place->add_value("street", std::string("St\x01", 3));
	place->create_group("at")->add_value("x", -5);
	record.create_group("none");
	return record;
}

// The rows "name | bytes" of a file.
std::map<std::string, std::string> golden_texts() {
	std::map<std::string, std::string> rows;
	std::istringstream lines(quor_test::golden_bytes("labeled_rows.txt"));
	for (std::string line; std::getline(lines, line);) {
		std::size_t const bar = line.find(" | ");
		if (line[0] != '#') {
			rows.emplace(line.substr(0, bar), quor_test::unescaped(line.substr(bar + 3)));
		}
	}
	return rows;
}

TEST(labeled_golden, rows_are_written_and_read) {
	std::vector<named_record> const rows = golden_records();
	auto const texts = golden_texts();
	EXPECT_EQ(texts.size(), rows.size());
	quor_test::comma_locale const comma;
	for (auto const &[name, record] : rows) {
		SCOPED_TRACE(name);
		ASSERT_EQ(texts.count(name), 1U);
		std::string const &text = texts.at(name);
		EXPECT_EQ(record.as_str(), text);
		labeled_text_buffer const back(text);
		EXPECT_EQ(back.as_str(), text);
		quor_reference::labeled_record expected;
		expected.assign(text);
		EXPECT_EQ(difference(expected, back), "");
	}
}

TEST(labeled_golden, record_is_written_and_read) {
	std::string const bytes = quor_test::golden_bytes("record.labeled");
	EXPECT_EQ(golden_labeled_record().as_str(), bytes);
	labeled_text_buffer const record(bytes);
	EXPECT_EQ(record.as_str(), bytes);
	EXPECT_EQ(record.retrieve_value("name").as_string(), "Ada");
	EXPECT_EQ(record.retrieve_value("born").as_int(), 1815);
	EXPECT_EQ(record.retrieve_value("share").as_double(), 0.25);
	EXPECT_EQ(record.retrieve_value("nothing").as_string(), "");
	EXPECT_EQ(record.retrieve_value("place").as_string(), "London");
	labeled_serialize_buffer const *const place = record.retrieve_group("place");
	ASSERT_NE(place, nullptr);
	EXPECT_EQ(place->retrieve_value("street").as_string(), std::string("St\x01", 3));
	ASSERT_TRUE(place->has_group("at"));
	EXPECT_EQ(place->retrieve_group("at")->retrieve_value("x").as_int(), -5);
	EXPECT_TRUE(record.has_value("none"));
	EXPECT_FALSE(record.has_group("none"));
}

TEST(labeled_golden, damaged_record_is_read_as_the_reference_reads_it) {
	std::string const bytes = quor_test::golden_bytes("record.labeled");
	auto const check = [](std::string const &text) {
		quor_reference::labeled_record expected;
		expected.assign(text);
		ASSERT_EQ(difference(expected, labeled_text_buffer(text)), "") << testing::PrintToString(text);
	};
	for (std::size_t place = 0; place != bytes.size(); ++place) {
		check(bytes.substr(0, place));
		std::string damaged = bytes;
		for (int byte = 0; byte != 256; ++byte) {
			damaged[place] = static_cast<char>(byte);
			check(damaged);
		}
	}
}

} // namespace
