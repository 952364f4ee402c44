#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "support/joined.hpp"
#include "support/random_xml.hpp"
#include "support/stream_pair.hpp"

namespace {

using quor_test::joined;
using quor_test::random_xml;
using quor_test::stream_pair;
using quor_test::temporary_directory;

// Documents of the dialect, with blanks in front that move their tokens against the border of
// the parser's buffer.
class random_stream {
public:
	explicit random_stream(unsigned int seed) : m_changes(seed), m_random(seed) {}

	std::string document() {
		std::string text = one_of({"<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>",
		                           "\xEF\xBB\xBF<?xml version=\"1.0\"                            ?>\n",
		                           "\n<?xml                                              ?> \n\n",
		                           "\n\n\n<?xml                                            ?>"});
		text += padding();
		text += element(below(4) + 1, true);
		return text + one_of({"", "\n", " ", "<a/>"});
	}

	std::string changed(std::string const &text) { return m_changes.changed(text); }

	std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }
	std::string one_of(std::vector<std::string> const &choices) { return choices[below(choices.size())]; }
	std::string name() { return one_of({"a", "b", "c", "include", "a_1", "9", "caf\xC3\xA9", "a", "b"}); }

private:
	std::string padding() {
		switch (below(4)) {
		case 0:
			return std::string(65536 - 60 - below(200), ' ');
		case 1:
			return "<!--" + std::string(65536 - 60 - below(200), '\n') + "-->";
		default:
			return "";
		}
	}

	std::string text() {
		return one_of({"text ", "one two\n", "&amp;", " &lt;x&gt;", "&#65;&#x42;", "&#300;", "&#010;", "&#;", "a > b",
		               "x/y", "&apos;&quot;&nbsp;", "caf\xC3\xA9", std::string(1, '\0'), "\n", "\t \r\n"});
	}

	std::string attributes() {
		std::string result;
		for (std::size_t i = below(4); i != 0; --i) {
			std::string const quote = one_of({"\"", "'"});
			result += joined({one_of({" ", "\n", ""}), one_of({"a", "b", "key", "_"}), std::to_string(i),
			                  one_of({"=", "= ", "=\n"}), quote, one_of({"", "1", "a b", "&amp;", "x&#65;\n", ">/"}),
			                  quote, one_of({"", " ", "\n"})});
		}
		return result;
	}

	std::string element(std::size_t depth, bool root) {
		std::string const tag = root ? one_of({"r", "a", "include"}) : name();
		if (!root && below(4) == 0) {
			return "<" + tag + attributes() + "/>";
		}
		std::string result = "<" + tag + attributes() + one_of({"", " "}) + ">";
		for (std::size_t i = below(root ? 12 : 5); i != 0; --i) {
			result += one_of({"", "\n", " "});
			if (below(6) == 0) {
				result += one_of({"<!---->", "<!-- <a> -->", "<!--\n\n-->", "<!-->-->"});
			}
			if (depth != 0 && below(3) != 0) {
				result += element(depth - 1, false);
			} else if (!root) {
				result += text();
			}
		}
		return result + "</" + tag + one_of({">", " >", "\n>"});
	}

	random_xml m_changes;
	std::mt19937 m_random;
};

// One call of the script.
void step(stream_pair &pair, random_stream &random) {
	switch (random.below(8)) {
	case 0:
		pair.recover(random.one_of({"0", "1"}) == "0" ? std::vector<std::string>{random.name()}
		                                              : std::vector<std::string>{random.name(), random.name(), "x"});
		break;
	case 1:
		if (random.below(10) == 0) {
			pair.recover({});
		}
		break;
	case 2:
	case 3:
		for (std::size_t i = random.below(5); i != 0 && pair.pop(); --i) {
		}
		break;
	case 4:
		while (pair.pop()) {
		}
		break;
	default:
		pair.parse();
	}
}

TEST(xml_stream_parser_random, the_parser_does_what_the_reference_does) {
	temporary_directory const directory;
	for (unsigned int seed = 0; seed != 1500; ++seed) {
		random_stream random(seed);
		std::string text = random.document();
		text = seed % 3 == 0 ? text : random.changed(text);
		stream_pair pair(directory, text, static_cast<unsigned int>(random.below(4)));
		for (int i = 0; i != 20 && pair.difference().empty(); ++i) {
			step(pair, random);
		}
		ASSERT_EQ(pair.difference(), "") << "seed " << seed << " in\n" << testing::PrintToString(text.substr(0, 3000));
	}
}

TEST(xml_stream_parser_random, files_that_change_give_what_the_reference_gives) {
	temporary_directory const directory;
	for (unsigned int seed = 0; seed != 600; ++seed) {
		random_stream random(seed);
		std::string const whole = random.changed(random.document());
		std::size_t size = random.below(whole.size() + 1);
		stream_pair pair(directory, whole.substr(0, size), static_cast<unsigned int>(random.below(4)));
		for (int i = 0; i != 25 && pair.difference().empty(); ++i) {
			step(pair, random);
			switch (random.below(8)) {
			case 0:
			case 1:
			case 2:
				size = std::min(whole.size(), size + random.below(random.below(2) == 0 ? 3 : whole.size() + 1));
				pair.change(whole.substr(0, size));
				break;
			case 3:
				if (random.below(8) == 0) {
					pair.change(whole.substr(0, random.below(whole.size() + 1)));
				} else if (random.below(8) == 0) {
					pair.change(std::nullopt);
				}
				break;
			default:
				break;
			}
		}
		ASSERT_EQ(pair.difference(), "") << "seed " << seed << " in\n" << testing::PrintToString(whole.substr(0, 3000));
	}
}

} // namespace
