#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "support/config_file_check.hpp"
#include "support/stop_handler.hpp"

namespace {

using quor::config::config_tree;
using quor::config::detail::config_file_text;
using quor::strings::ustring8;
using quor::types::variant;
using quor_test::listing_text;
using quor_test::nodes_of;
using quor_test::on_stop;
using quor_test::read_tree;
using quor_test::stop_handler;

using listing_t = config_tree::value_pair_array;

std::string saved(config_tree const &tree) {
	return config_file_text(nodes_of(tree));
}

// A tree that a file of this text makes.
std::string resaved(std::string const &text) {
	return saved(read_tree(text));
}

TEST(config_file_writer, text_holds_sections_with_their_keys) {
	struct row {
		char const *name;
		std::string loaded;
		std::string saved;
	};
	for (auto const &[name, loaded, text] : {
	         row{"nothing", "", ""},
	         row{"top level only", "aa = 1\nbb[] = 1\n", ""},
	         row{"empty section", "[s]\n", ""},
	         row{"one key", "[s]\naa = 1\n", "[s]\r\naa=1\r\n\r\n"},
	         row{"order of the tree", "[t]\nbb = 1\nAA = 2\n[s]\ncc = 3\n[uu]\ndd = 4\n",
	             "[s]\r\ncc=3\r\naa=2\r\nbb=1\r\n\r\n[t]\r\ncc=3\r\naa=2\r\nbb=1\r\n\r\n[uu]\r\ndd=4\r\n\r\n"},
	         row{"nested", "[s.t]\naa = 1\n[s]\nbb = 2\n", "[s]\r\nbb=2\r\n\r\n[s.t]\r\naa=1\r\n\r\n"},
	         row{"passage nodes", "[s.t.u]\naa = 1\n", "[s]\r\n\r\n[s.t]\r\n\r\n[s.t.u]\r\naa=1\r\n\r\n"},
	         row{"below a value", "[s]\naa = 1\naa.bb = 2\n", "[s]\r\naa=1\r\n\r\n"},
	         row{"below a value, with the length of a section", "[s]\naa = 1\naa.bb = 2\n[four]\ncc = 3\n",
	             "[four]\r\ncc=3\r\nbb=2\r\n\r\n[s]\r\naa=1\r\n\r\n"},
	         row{"blank in a value", "[s]\naa = \"x y\"\n", "[s]\r\naa=\"x y\"\r\n\r\n"},
	         row{"tab, CR, LF in values", "[s]\naa = \"\t\"\nbb = \"\r\"\ncc = \"\n\"\n",
	             "[s]\r\naa=\"\t\"\r\nbb=\"\r\"\r\ncc=\"\n\"\r\n\r\n"},
	         row{"blanks in names", "[\"s t\"]\n\"a b\" = 1\n", "[\"s t\"]\r\n\"a b\"=1\r\n\r\n"},
	         row{"nothing else is quoted", "[s]\naa = \"x#y//z\"\nbb = \"a,b\"\ncc = \"\v\f\"\n",
	             "[s]\r\naa=x#y//z\r\nbb=a,b\r\ncc=\v\f\r\n\r\n"},
	         row{"nothing is escaped", "[s]\naa = \"x\\\" y\"\n", "[s]\r\naa=\"x\\\" y\"\r\n\r\n"},
	         row{"empty leaf", "[s]\n.. = 1\n", "[s]\r\n\r\n[s.]\r\n=1\r\n\r\n"},
	         row{"leaf before a last dot", "[ab]\n.cc. = 1\n.. = 2\n", "[ab]\r\n\r\n[ab.]\r\n=2\r\ncc=1\r\n\r\n"},
	         row{"empty name", ".. = 1\n[s]\naa = 2\n", "[]\r\n\r\n[s]\r\naa=2\r\n\r\n"},
	         row{"names of one length", "[abc]\naa = 1\n[xyz]\nbb = 2\n",
	             "[abc]\r\naa=1\r\nbb=2\r\n\r\n[xyz]\r\naa=1\r\nbb=2\r\n\r\n"},
	         row{"names of one length in two depths", "[a.c]\naa = 1\n[xyz]\nbb = 2\n",
	             "[a]\r\n\r\n[a.c]\r\naa=1\r\nbb=2\r\n\r\n[xyz]\r\naa=1\r\nbb=2\r\n\r\n"},
	     }) {
		SCOPED_TRACE(name);
		EXPECT_EQ(resaved(loaded), text);
	}
}

TEST(config_file_writer, text_of_an_array_runs_by_leaves) {
	struct row {
		char const *name;
		std::string loaded;
		std::string saved;
	};
	for (auto const &[name, loaded, text] : {
	         row{"the entry behind it is lost", "[sec]\naa = 1\nbb = \"x y\"\ncc[] = p,q\ndd = 2\n",
	             "[sec]\r\naa=1\r\nbb=\"x y\"\r\ncc[]=p,q\r\n\r\n"},
	         row{"the one after it is not", "[s]\naa[] = 1\nbb = 2\ncc = 3\n", "[s]\r\naa[]=1\r\ncc=3\r\n\r\n"},
	         row{"a section behind it is lost as an entry only", "[s]\naa[] = 1\n[t]\nbb = 2\n",
	             "[s]\r\naa[]=1\r\nbb=2\r\n\r\n[t]\r\naa[]=1\r\nbb=2\r\n\r\n"},
	         row{"an array behind it is lost", "[s]\naa[] = 1\nbb[] = 2\ncc = 3\n", "[s]\r\naa[]=1\r\ncc=3\r\n\r\n"},
	         row{"quoted elements", "[s]\naa[] = \"1 2\", \"3,4\"\nbb = 2\n", "[s]\r\naa[]=\"1 2\",3,4\r\n\r\n"},
	         row{"empty elements", "[s]\naa[] = ,,1\nbb = 2\n", "[s]\r\naa[]=,,1\r\n\r\n"},
	         row{"order of the tree", "[s]\naa[] = 0,1,2,3,4,5,6,7,8,9,10\nbb = 2\n",
	             "[s]\r\naa[]=0,1,10,2,3,4,5,6,7,8,9\r\n\r\n"},
	         row{"numbers with text", "[s]\naa[] = 1\naa.2nd = 2\naa.0x1 = 3\naa.99999999999 = 4\nbb = 2\n",
	             "[s]\r\naa[]=1,3,2,4\r\n\r\n"},
	         row{"octal 8 is no number", "[s]\naa[] = 1\naa.08 = 2\naa.1 = 3\nbb = 2\n",
	             "[s]\r\naa[]=1\r\nbb=2\r\n\r\n"},
	         row{"doubled zero is none", "[s]\naa[] = 1\naa.00 = 2\naa.1 = 3\nbb = 2\n",
	             "[s]\r\naa[]=1\r\nbb=2\r\n\r\n"},
	         row{"whose elements they are isn't asked", "[s]\naa[] = 1\nb.5 = 2\n12 = 3\ncc = 4\n",
	             "[s]\r\n12=3\r\naa[]=1\r\ncc=4\r\n\r\n[s.b]\r\n5=2\r\n\r\n"},
	         row{"below elements", "[s]\naa[] = 1,2\naa.0.7 = 3\nbb = 2\n", "[s]\r\naa[]=1,3,2\r\n\r\n"},
	         row{"an array of the top level behind it", "[s]\naa[] = 1\n[]\nt[] = 2\n[5]\nxx = 3\n",
	             "[5]\r\nxx=3\r\naa[]=1\r\n0=2\r\n\r\n[s]\r\nxx=3\r\naa[]=1\r\n0=2\r\n\r\n"},
	     }) {
		SCOPED_TRACE(name);
		stop_handler const stops(on_stop::returns);
		EXPECT_EQ(resaved(loaded), text);
		EXPECT_EQ(stops.count(), 0U);
	}
}

TEST(config_file_writer, text_takes_flags_as_they_stand) {
	struct row {
		unsigned int flags;
		std::string text;
	};
	for (auto const &[flags, text] :
	     {row{0, "[s]\r\nz=9\r\n\r\n[s.k]\r\n0=p\r\n1=q\r\n\r\n"}, row{1, "[s]\r\nk=v\r\nz=9\r\n\r\n"},
	      row{2, "[s]\r\nk=v\r\nz=9\r\n\r\n"}, row{3, "[s]\r\nk[]=p,q\r\n\r\n"}, row{4, "[s]\r\nk=v\r\nz=9\r\n\r\n"},
	      row{7, "[s]\r\nk=v\r\nz=9\r\n\r\n"}, row{0x80000003U, "[s]\r\nk=v\r\nz=9\r\n\r\n"}}) {
		SCOPED_TRACE(flags);
		listing_t const listing{{"s", {0U, variant()}},
		                        {"s.k", {flags, "v"}},
		                        {"s.k.0", {1U, "p"}},
		                        {"s.k.1", {1U, "q"}},
		                        {"s.z", {1U, 9}}};
		EXPECT_EQ(config_file_text(listing), text);
	}
}

TEST(config_file_writer, text_of_values_that_are_no_text) {
	listing_t const listing{{"s", {0U, variant()}},
	                        {"s.a", {1U, variant(1.5)}},
	                        {"s.b", {1U, variant()}},
	                        {"s.c", {1U, variant(true)}},
	                        {"s.d", {1U, variant(QUOR_W("\x20AC"))}},
	                        {"s.e", {1U, variant(ustring8("\0 ", 2))}}};
	std::string const text = config_file_text(listing);
	EXPECT_EQ(text, std::string("[s]\r\na=1.5\r\nb=\r\nc=1\r\nd=\xE2\x82\xAC\r\ne=\"\0 \"\r\n\r\n", 38));
}

TEST(config_file_writer, text_of_an_array_without_an_entry_behind_it_stops) {
	struct row {
		char const *name;
		listing_t listing;
		std::size_t stops;
		std::string text; // when the handler returns
	};
	variant const nil;
	for (auto const &[name, listing, stops, text] : {
	         row{"elements to the end",
	             {{"s", {0U, nil}}, {"s.k", {3U, nil}}, {"s.k.0", {1U, "p"}}, {"s.k.1", {1U, "q"}}},
	             1,
	             "[s]\r\nk[]=p,q\r\n\r\n"},
	         row{"head at the end", {{"s", {0U, nil}}, {"s.k", {3U, nil}}}, 1, "[s]\r\nk[]=\r\n\r\n"},
	         row{"no first element",
	             {{"s", {0U, nil}}, {"s.k", {3U, nil}}, {"s.k.1", {1U, "q"}}},
	             0,
	             "[s]\r\nk[]=\r\n\r\n"},
	         row{"no first element, then others",
	             {{"s", {0U, nil}}, {"s.k", {3U, nil}}, {"s.k.1", {1U, "q"}}, {"s.k.2", {1U, "r"}}, {"s.z", {1U, "z"}}},
	             0,
	             "[s]\r\nk[]=\r\nz=z\r\n\r\n"},
	         row{"head before a head",
	             {{"s", {0U, nil}}, {"s.k", {3U, nil}}, {"s.l", {3U, nil}}},
	             0,
	             "[s]\r\nk[]=\r\n\r\n"},
	         row{"two sections",
	             {{"s", {0U, nil}}, {"s.a", {1U, "1"}}, {"t", {0U, nil}}, {"t.k", {3U, nil}}, {"t.k.0", {1U, "p"}}},
	             2,
	             "[s]\r\na=1\r\nk[]=p\r\n\r\n[t]\r\na=1\r\nk[]=p\r\n\r\n"},
	         row{"in no section", {{"k", {3U, nil}}, {"k.0", {1U, "p"}}, {"k.1", {1U, "q"}}}, 0, ""},
	         row{"in none beside one",
	             {{"sec", {0U, nil}}, {"sec.a", {1U, "1"}}, {"t", {3U, nil}}, {"t.0", {1U, "p"}}},
	             0,
	             "[sec]\r\na=1\r\n\r\n"},
	         row{"passage node ends it",
	             {{"s", {0U, nil}}, {"s.k", {3U, nil}}, {"s.k.0", {1U, "p"}}, {"t", {0U, nil}}},
	             0,
	             "[s]\r\nk[]=p\r\n\r\n[t]\r\nk[]=p\r\n\r\n"},
	     }) {
		SCOPED_TRACE(name);
		{
			stop_handler const handler(on_stop::returns);
			EXPECT_EQ(config_file_text(listing), text);
			EXPECT_EQ(handler.count(), stops);
		}
		stop_handler const handler(on_stop::throws);
		if (stops == 0) {
			EXPECT_EQ(config_file_text(listing), text);
		} else {
			EXPECT_THROW(config_file_text(listing), quor_test::stopped);
			EXPECT_EQ(handler.count(), 1U);
		}
	}
}

void expect_reference(listing_t const &listing) {
	stop_handler const stops(on_stop::returns);
	reference::cfg_written const expected = quor_test::slowly_written(listing);
	ASSERT_EQ(config_file_text(listing), expected.text) << testing::PrintToString(listing_text(listing));
	ASSERT_EQ(stops.count(), expected.stops) << testing::PrintToString(listing_text(listing));
}

TEST(config_file_writer, text_agrees_with_the_slow_writer_on_random_trees) {
	std::vector<std::string> const components{"a", "b",  "c",  "ab",  "cd",          "",    "",   "0",
	                                          "1", "2",  "10", "08",  "2nd",         "0x1", "-1", "+3",
	                                          " ", " 7", "k",  "a b", "99999999999", "\t"};
	std::vector<ustring8> const values{"", "v", "x y", "a\tb", "1,2", "#", "\"q\"", "\r", "\n"};
	unsigned int const flags[] = {0, 0, 0, 2, 2, 2, 4, 8};
	std::mt19937 random(4711);
	for (int i = 0; i != 8000 && !HasFatalFailure(); ++i) {
		config_tree tree;
		for (std::size_t keys = random() % 14; keys != 0; --keys) {
			std::string key = components[random() % components.size()];
			for (std::size_t depth = random() % 4; depth != 0; --depth) {
				key.append(".").append(components[random() % components.size()]);
			}
			unsigned int const word = flags[random() % 8];
			tree.set_node(key, word == 2 ? variant() : variant(values[random() % values.size()]), word);
			for (std::size_t element = word == 2 ? random() % 4 : 0; element != 0; --element) {
				tree.set_node(key + "." + std::to_string(element - 1), values[random() % values.size()], 0);
			}
		}
		expect_reference(nodes_of(tree));
	}
}

TEST(config_file_writer, text_agrees_with_the_slow_writer_on_random_listings) {
	// Names that no tree has, too.
	std::mt19937 random(42);
	for (int i = 0; i != 8000 && !HasFatalFailure(); ++i) {
		listing_t listing;
		for (std::size_t entries = random() % 12; entries != 0; --entries) {
			std::string name;
			for (std::size_t length = random() % 6; length != 0; --length) {
				name += ".a0.1"[random() % 5];
			}
			listing.push_back(
			    {name, {(random() % 3 == 0) ? 0U : static_cast<unsigned int>(random() % 5), variant("v")}});
		}
		expect_reference(listing);
	}
}

// A tree whose values come back as they were: text that is not empty, without what means
// something to the reader and isn't quoted.
config_tree random_plain_tree(std::mt19937 &random) {
	std::vector<std::string> const words{"aa", "bb", "cc-dd", "long_name", "x1", "Mixed", "\xC3\xA9t\xC3\xA9"};
	std::vector<ustring8> const values{"v",   "x y",     "a\tb", " lead", "two\nlines",
	                                   "1,2", "C:\\dir", "a=b",  "[x]",   "\x80"};
	config_tree tree;
	for (std::size_t keys = random() % 20; keys != 0; --keys) {
		std::string key;
		for (std::size_t depth = random() % 4; depth != 0; --depth) {
			key += words[random() % words.size()] + ".";
		}
		tree.set_node(key + words[random() % words.size()], values[random() % values.size()], 0);
	}
	return tree;
}

TEST(config_file_writer, text_loads_again_as_what_the_rules_keep) {
	std::mt19937 random(1234);
	for (int i = 0; i != 3000 && !HasFatalFailure(); ++i) {
		config_tree const tree = random_plain_tree(random);
		// Every section gets the keys whose own section's name has its length.
		listing_t const before = nodes_of(tree);
		config_tree expected;
		for (auto const &[section, section_node] : before) {
			for (auto const &[name, node] : before) {
				std::size_t const dot = name.rfind('.');
				if (section_node.first == 0 && node.first == 1 && dot == section.size()) {
					expected.set_node(section + name.substr(dot), node.second.as_utf8(), 0);
				}
			}
		}
		config_tree const again = read_tree(saved(tree));
		ASSERT_EQ(listing_text(again), listing_text(expected));
		// Keys of nodes that were passed through stay what they were.
		for (auto const &[name, node] : before) {
			std::size_t const dot = name.rfind('.');
			auto const *const found = again.get_node(name);
			if (node.first == 1 && dot != std::string::npos && tree.get_node(name.substr(0, dot))->first == 0) {
				ASSERT_NE(found, nullptr);
			}
		}
	}
}

TEST(config_file_writer, text_of_arrays_loads_again_in_the_order_of_the_listing) {
	// Sections of different lengths; behind each array stands a key that gets lost.
	std::vector<ustring8> const values{"v", "x y", "a\tb", "two\nlines", "1, 2", "C:\\dir", "# 3", "http:// x"};
	std::mt19937 random(99);
	for (int i = 0; i != 2000 && !HasFatalFailure(); ++i) {
		config_tree tree;
		config_tree expected;
		for (std::size_t sections = random() % 5; sections != 0; --sections) {
			std::string const section(sections, 's');
			for (std::size_t arrays = random() % 4; arrays != 0; --arrays) {
				ustring8 const key = section + ".list" + std::to_string(arrays);
				std::size_t const size = 1 + random() % 13;
				// By the bytes of their indices: 0, 1, 10, 11, 12, 2.
				std::map<std::string, ustring8> elements;
				for (std::size_t index = 0; index != size; ++index) {
					elements[std::to_string(index)] = values[random() % values.size()];
				}
				tree.set_node(key, variant(), config_tree::flag_array);
				expected.set_node(key, variant(), config_tree::flag_array);
				std::size_t place = 0;
				for (auto const &[name, value] : elements) {
					tree.set_node(key + "." + name, value, 0);
					expected.set_node(key + "." + std::to_string(place++), value, 0);
				}
				tree.set_node(key + "_", "lost", 0);
			}
			tree.set_node(section + ".scalar", values[random() % values.size()], 0);
			expected.set_node(section + ".scalar", tree.get_node(section + ".scalar")->second, 0);
		}
		stop_handler const stops(on_stop::returns);
		ASSERT_EQ(listing_text(read_tree(saved(tree))), listing_text(expected));
		ASSERT_EQ(stops.count(), 0U);
	}
}

TEST(config_file_writer, text_that_is_not_quoted_is_read_as_the_reader_reads_it) {
	struct row {
		char const *value;
		std::string listing;
	};
	for (auto const &[value, listing] : {
	         row{"=42", "s:0= s.kk==42zz:1=end"}, // the key runs on
	         row{"a#b", "s:0= s.kk:1=a s.zz:1=end"},
	         row{"a//b", "s:0= s.kk:1=a s.zz:1=end"},
	         row{"# b", "s:0= s.kk:1=# b s.zz:1=end"},
	         row{"", "s:0= s.zz:1=end"},
	         row{"a\"b\"", "s:0= s.kk:1=ab s.zz:1=end"},
	         row{"a\\", "s:0= s.kk:1=a\\ s.zz:1=end"},
	         row{"a b\\", "s:0= s.kk:1=a b\\\"\r\nzz=end\r\n\r\n"},
	     }) {
		SCOPED_TRACE(value);
		config_tree tree;
		tree.set_node("s.kk", value, 0);
		tree.set_node("s.zz", "end", 0);
		EXPECT_EQ(listing_text(read_tree(saved(tree))), listing);
	}
}

TEST(config_file_writer, text_takes_time_for_its_own_length_only) {
	// Sections and entries by the ten thousands, with hardly anything to write.
	listing_t listing;
	std::size_t expected = 0;
	for (std::size_t i = 0; i != 30000; ++i) {
		std::string const name(i % 7 + 20, 's');
		listing.push_back({name, {0U, variant()}});
		expected += std::string("[]\r\n\r\n").size() + name.size();
		listing.push_back({std::string(i % 7 + 10, 't').append(".u"), {1U, variant("v")}});
		listing.push_back({"k", {3U, variant()}});
		listing.push_back({std::string("k.").append(std::to_string(i)), {1U, variant("v")}});
	}
	EXPECT_EQ(config_file_text(listing).size(), expected);
	// One array of many elements in many sections that don't have it.
	std::string const one = saved(read_tree(std::string("[ss]\nkk[] = ").append(100000, ',').append("1\nll = 2\n")));
	EXPECT_EQ(one.size(), 6U + 5U + 100000U + 1U + 4U);
}

} // namespace
