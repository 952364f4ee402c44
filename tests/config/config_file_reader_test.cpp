#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <new>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "support/allocation_counter.hpp"
#include "support/config_file_check.hpp"
#include "support/stop_handler.hpp"

namespace {

using quor_test::listing_text;
using quor_test::on_stop;
using quor_test::read_tree;
using quor_test::stop_handler;

struct row {
	char const *name;
	std::string text;
	std::string listing;
};

// Keys have two bytes at least, so nothing here stops.
void expect_listings(std::initializer_list<row> rows) {
	for (auto const &[name, text, listing] : rows) {
		SCOPED_TRACE(name);
		stop_handler const stops(on_stop::returns);
		EXPECT_EQ(listing_text(read_tree(text)), listing);
		EXPECT_EQ(stops.count(), 0U);
	}
}

TEST(config_file_reader, read_scalars_gives_text_without_blanks) {
	expect_listings({
	    {"nothing", "", ""},
	    {"blank", " \t\r\n\n \t", ""},
	    {"plain", "key = value\n", "key:1=value"},
	    {"no line end", "key = value", "key:1=value"},
	    {"no blanks", "key=value", "key:1=value"},
	    {"blanks in the value", "aa = hello world\n", "aa:1=helloworld"},
	    {"quoted", "aa = \"hello world\"\n", "aa:1=hello world"},
	    {"partly quoted", "aa = x \" y \" z\n", "aa:1=x y z"},
	    {"quotes side by side", "aa = \"x\"\"y\"\n", "aa:1=xy"},
	    {"tabs", "a\ta\t=\tv\tw\n", "aa:1=vw"},
	    {"CR LF", "aa = 1\r\nbb = 2\r\n", "aa:1=1 bb:1=2"},
	    {"lone CR", "aa = 1\rbb = 2\n", "aa:1=1\rbb=2"},
	    {"upper case", "Key = Value\n", "key:1=Value"},
	    {"dots", "aa.bb = 1\n", "aa:0= aa.bb:1=1"},
	    {"backslash", "aa\\bb = C:\\dir\n", "aa:0= aa.bb:1=C:\\dir"},
	    {"slash", "aa/bb = a/b\n", "aa:0= aa.bb:1=a/b"},
	    {"later wins", "aa = 1\nAA = 2\n", "aa:1=2"},
	    {"empty value", "aa =\nbb = 1\n", "bb:1=1"},
	    {"empty value at the end", "aa =", ""},
	    {"empty quotes", "aa = \"\"\nbb = 1\n", "bb:1=1"},
	    {"only blanks", "aa = \t \nbb = 1\n", "bb:1=1"},
	    {"empty value keeps the old one", "aa = 1\naa =\n", "aa:1=1"},
	    {"operators in the value", "aa = b=c==d+=e:=f<>-*/=\n", "aa:1=b=c==d+=e:=f<>-*/="},
	    {"brackets in the value", "aa = [b]\n", "aa:1=[b]"},
	    {"comma in the value", "aa = b,c,\nbb = 1\n", "aa:1=b,c, bb:1=1"},
	});
}

TEST(config_file_reader, read_keys_run_to_an_equals_sign_of_its_own) {
	expect_listings({
	    {"blank in the key", "a b = 1\n", "ab:1=1"},
	    {"key over lines", "ab\ncd = 1\n", "abcd:1=1"},
	    {"key over CR LF", "ab\r\ncd = 1\n", "abcd:1=1"},
	    {"text without a sign", "abc\nd = 1\n", "abcd:1=1"},
	    {"quoted key", "\"a b\" = 1\n", "a b:1=1"},
	    {"quoted line end", "\"a\nb\" = 1\n", "a\nb:1=1"},
	    {"comment signs", "a#b//c = 1\n", "a#b:0= a#b.:0= a#b..c:1=1"},
	    {"equality", "a==b = 1\n", "a==b:1=1"},
	    {"assignments", "a+=b-=c*=d:=e<=f>=g = 1\n", "a+=b-=c*=d:=e<=f>=g:1=1"},
	    {"division", "aa/=b = 1\n", "aa:0= aa.=b:1=1"},
	    {"quoted sign", "a\"=\"b = 1\n", "a=b:1=1"},
	    {"three signs", "aa===1\n", "aa==:1=1"},
	    {"close and sign", "aa*/=1\n", "aa*:1=1"},
	    {"comment and sign", "aa//=1\n", "aa:0= aa.:1=1"},
	    {"leading sign", "= 1\nbb = 2\n", "1bb:1=2"},
	    {"leading sign and its value", "=aa = 2\n", "aa:1=2"},
	    {"only signs", "= = =\n", ""},
	    {"end in a key", "abc", ""},
	    {"end in a key of two lines", "abc\ndef", ""},
	    {"lone CR", "ab\rcd = 1\n", "ab\rcd:1=1"},
	    {"trailing bracket", "ab] = 1\n", "ab]:1=1"},
	    {"opening bracket", "ab[ = 1\n", "ab[:1=1"},
	    {"bracket behind blanks only", "ab [s] = 1\n", "ab[s]:1=1"},
	    {"dot at the end", "ab. = 1\n", "ab:1=1"},
	    {"two dots at the end", "ab.. = 1\n", "ab:0= ab.:1=1"},
	    {"two dots", ".. = 1\n", ":0= :1=1"},
	    {"byte order mark", "\xEF\xBB\xBF[s]\nk=1\n", "\xEF\xBB\xBF[s]k:1=1"},
	    {"zero byte", std::string("a\0b = c\0d\n", 10), std::string("a\0b:1=c\0d", 9)},
	    {"high bytes", "\x80\xFF = \xC3\xA9\n", "\x80\xFF:1=\xC3\xA9"},
	});
}

TEST(config_file_reader, read_sections_prefix_the_keys_that_follow) {
	expect_listings({
	    {"section", "[s]\naa = 1\nbb = 2\n", "s:0= s.aa:1=1 s.bb:1=2"},
	    {"dotted", "[s.t]\naa = 1\n", "s:0= s.t:0= s.t.aa:1=1"},
	    {"other separators", "[s/t\\u]\naa = 1\n", "s:0= s.t:0= s.t.u:0= s.t.u.aa:1=1"},
	    {"blanks", "[ a b ]\naa = 1\n", "ab:0= ab.aa:1=1"},
	    {"tabs and line ends", "[\ta\n\r\nb]\naa = 1\n", "ab:0= ab.aa:1=1"},
	    {"quoted", "[\"a b\"]\naa = 1\n", "a b:0= a b.aa:1=1"},
	    {"quoted bracket", "[a\"]\"b]\naa = 1\n", "a]b:0= a]b.aa:1=1"},
	    {"back to the top", "[s]\naa = 1\n[]\nbb = 2\n", "bb:1=2 s:0= s.aa:1=1"},
	    {"blank name", "[s]\n[ \t]\nbb = 2\n", "bb:1=2"},
	    {"empty quotes", "[s]\n[\"\"]\nbb = 2\n", "bb:1=2"},
	    {"no keys", "[s]\n", ""},
	    {"no values", "[s]\naa=\n", ""},
	    {"statement on the line", "[s] aa = 1\n", "s:0= s.aa:1=1"},
	    {"two on the line", "[s][t] aa = 1\n", "t:0= t.aa:1=1"},
	    {"comment signs are text", "[a#b]\naa = 1\n", "a#b:0= a#b.aa:1=1"},
	    {"assignment is text", "[a=b]\naa = 1\n", "a=b:0= a=b.aa:1=1"},
	    {"opening bracket is text", "[[a]\naa = 1\n", "[a:0= [a.aa:1=1"},
	    {"closing twice", "[s]]\naa = 1\n", "s:0= s.]aa:1=1"},
	    {"never closed", "[s\naa = 1\n", ""},
	    {"case", "[S]\naa = 1\n[s]\nbb = 2\n", "s:0= s.aa:1=1 s.bb:1=2"},
	    {"dot at the end", "[s.]\naa = 1\n", "s:0= s.:0= s..aa:1=1"},
	    {"only a dot", "[.]\naa = 1\n", ":0= :0= aa:1=1"},
	    {"key with separators", "[s]\n.aa = 1\nbb. = 2\n", "s:0= s.:0= s..aa:1=1 s.bb:1=2"},
	    {"section and value", "[]\nss = 1\n[ss]\naa = 2\n[]\nss = 3\n", "ss:1=3 ss.aa:1=2"},
	    {"quoted bracket opens none", "\"[\"s = 1\n", "[s:1=1"},
	    {"bracket inside a key opens none", "aa[s]\n = 1\n", "aa[s]:1=1"},
	});
}

TEST(config_file_reader, read_comments_by_tokens) {
	expect_listings({
	    {"pound", "# aa = 1\nbb = 2\n", "bb:1=2"},
	    {"slashes", "// aa = 1\nbb = 2\n", "bb:1=2"},
	    {"CR LF", "# aa = 1\r\nbb = 2\r\n", "bb:1=2"},
	    {"lone CR doesn't end it", "# aa = 1\rbb = 2\ncc = 3", "cc:1=3"},
	    {"behind a value", "aa = 1 # note\nbb = 2 // note\n", "aa:1=1 bb:1=2"},
	    {"inside a value", "path = a//b\n", "path:1=a"},
	    {"quoted", "path = \"a//b#c\"\n", "path:1=a//b#c"},
	    {"three slashes", "path = a///b\n", "path:1=a"},
	    {"slash at the end", "path = a/\n", "path:1=a/"},
	    {"close is no comment", "aa = x*//y\n", "aa:1=x*//y"},
	    {"close in statement position", "*/ab = 1\n", "*:0= *.ab:1=1"},
	    {"no block comments", "aa = x/*y*/\n", "aa:1=x/*y*/"},
	    {"instead of a value", "aa = # 1\nbb = 2\n", "bb:1=2"},
	    {"behind a section", "[s] # note\naa = 1\n", "s:0= s.aa:1=1"},
	    {"in a section name", "[s # note\nt]\naa = 1\n", "s#notet:0= s#notet.aa:1=1"},
	    {"end of the file", "aa = 1 # note", "aa:1=1"},
	    {"only", "#", ""},
	    {"quote swallows lines", "# don\"t\naa = 1\n\" bb = 2\ncc = 3\n", "cc:1=3"},
	    {"quote swallows the rest", "aa = 1\n# don\"t\nbb = 2\n", "aa:1=1"},
	    {"protected quote", "# \"\\\"\nbb = 2\n\"\ncc = 3\n", "cc:1=3"},
	    {"apostrophe", "# don't\nbb = 2\n", "bb:1=2"},
	});
}

TEST(config_file_reader, read_strings_to_their_last_byte) {
	expect_listings({
	    {"line end inside", "aa = \"1\n2\"\nbb = 3\n", "aa:1=1\n2 bb:1=3"},
	    {"protected quote", "aa = \"1\\\"2\" 3\n", "aa:1=1\\\"23"},
	    {"protected backslash", "aa = \"1\\\\\" 3\n", "aa:1=1\\\\3"},
	    {"not closed", "aa = \"1\nbb = 3\n", "aa:1=1\nbb = 3\n"},
	    {"quote at the end", "aa = 1\"", "aa:1=1"},
	    {"backslash at the end", "aa = \"x\\", std::string("aa:1=x\\\0", 8)},
	    {"in a key", "\"abc = 1", ""},
	    {"in a section", "aa=1\n[\"abc\\", "aa:1=1"},
	});
}

TEST(config_file_reader, read_arrays_over_lines_and_comments) {
	expect_listings({
	    {"one line", "kk[] = a, b, c\n", "kk:3= kk.0:1=a kk.1:1=b kk.2:1=c"},
	    {"one element", "kk[] = 1\n", "kk:3= kk.0:1=1"},
	    {"one-byte name", "k[] = 1\n", "k:3= k.0:1=1"},
	    {"blank before the brackets", "k [ ] = 1\n", "k:3= k.0:1=1"},
	    {"no line end", "kk[] = a,b", "kk:3= kk.0:1=a kk.1:1=b"},
	    {"line end behind a comma", "kk[] = a,\n b,\r\n\n\tc\nll = 1\n", "kk:3= kk.0:1=a kk.1:1=b kk.2:1=c ll:1=1"},
	    {"comment behind a comma", "kk[] = a, # first\n// all\n\nb # last\nll = 1\n", "kk:3= kk.0:1=a kk.1:1=b ll:1=1"},
	    {"comment ends it", "kk[] = a # b,\nll = 1\n", "kk:3= kk.0:1=a ll:1=1"},
	    {"line end behind the sign", "kk[] =\nll = 1\n", "ll:1=1"},
	    {"next statement is taken", "k[] = 1,\nm[] = 2\n", "k:3= k.0:1=1 k.1:1=m[]=2"},
	    {"section header is taken", "k[] = 1,\n[s]\naa = 2\n", "aa:1=2 k:3= k.0:1=1 k.1:1=[s]"},
	    {"empty elements", "kk[] = ,,a\n", "kk:3= kk.0:1= kk.1:1= kk.2:1=a"},
	    {"quoted comma", "kk[] = \"a, b\", c\n", "kk:3= kk.0:1=a, b kk.1:1=c"},
	    {"blanks in elements", "kk[] = a b, c\td\n", "kk:3= kk.0:1=ab kk.1:1=cd"},
	    {"in a section", "[s]\nkk[] = a,b\n", "s:0= s.kk:3= s.kk.0:1=a s.kk.1:1=b"},
	    {"over a scalar", "kk = 1\nkk[] = a\n", "kk:3= kk.0:1=a"},
	    {"under a scalar", "kk[] = a\nkk = 1\n", "kk:1=1 kk.0:1=a"},
	    {"shorter one leaves elements", "kk[] = a,b,c\nkk[] = d\n", "kk:3= kk.0:1=d kk.1:1=b kk.2:1=c"},
	    {"brackets alone are a section", "[] = 1\nbb = 2\n", "1bb:1=2"},
	    {"quoted brackets", "\"[\"] = 1\n", ":3= 0:1=1"},
	    {"quoted brackets in a section", "[s]\n\"[\"] = 1\n", "s:3= s.:0= s..0:1=1"},
	    {"quoted brackets in a section with keys", "[s]\naa=1\n\"[]\" = 1\n", "s:3= s.:0= s..0:1=1 s.aa:1=1"},
	    {"quoted brackets in a dotted section", "[s.]\n\"[]\" = 1\n", "s:0= s.:3= s..:0= s...0:1=1"},
	    {"dot before the brackets", "kk.[] = 1\n", "kk:3= kk.:0= kk..0:1=1"},
	    {"brackets twice", "kk[][] = 1\n", "kk[]:3= kk[].0:1=1"},
	    {"text behind the brackets", "kk[]x = 1\n", "kk[]x:1=1"},
	    {"number in the brackets", "kk[1] = 1\n", "kk[1]:1=1"},
	    {"twelve elements", "kk[] = a,b,c,d,e,f,g,h,i,j,k,l\n",
	     "kk:3= kk.0:1=a kk.1:1=b kk.10:1=k kk.11:1=l kk.2:1=c kk.3:1=d kk.4:1=e kk.5:1=f kk.6:1=g kk.7:1=h kk.8:1=i "
	     "kk.9:1=j"},
	});
}

TEST(config_file_reader, read_unfinished_arrays_wait_for_the_next_one) {
	expect_listings({
	    {"nothing", "kk[] =\n", ""},
	    {"only a comma", "kk[] = ,\n", ""},
	    {"end behind a comma", "kk[] = 1, 2,", ""},
	    {"end behind a comment", "kk[] = 1, 2, # more", ""},
	    {"empty string ends the list", "kk[] = 1, 2, \"\"\nll[] = 3\n", "ll:3= ll.0:1=1 ll.1:1=2 ll.2:1=3"},
	    {"empty string alone", "kk[] = \"\"\nll[] = 3\n", "ll:3= ll.0:1=3"},
	    {"over scalars and sections", "kk[] = 1, \"\"\naa = 2\n[s]\nll[] = 3\n",
	     "aa:1=2 s:0= s.ll:3= s.ll.0:1=1 s.ll.1:1=3"},
	    {"over two arrays", "kk[] = 1, \"\"\nll[] = 2, \"\"\nmm[] = 3\n", "mm:3= mm.0:1=1 mm.1:1=2 mm.2:1=3"},
	    {"empty first element", "kk[] = , \"\"\nll[] = 3\n", "ll:3= ll.0:1= ll.1:1=3"},
	    {"is gone once used", "kk[] = 1, \"\"\nll[] = 2\nmm[] = 3\n", "ll:3= ll.0:1=1 ll.1:1=2 mm:3= mm.0:1=3"},
	    {"no value in between uses it", "kk[] = 1, \"\"\nll[] =\nmm[] = 3\n", "mm:3= mm.0:1=1 mm.1:1=3"},
	});
	// A file begins with none.
	quor::config::config_tree tree;
	for (char const *const text : {"kk[] = 1,", "ll[] = 2"}) {
		quor::strings::ustring8 const copy(text);
		quor::config::detail::config_file_reader(copy, tree).read();
	}
	EXPECT_EQ(listing_text(tree), "ll:3= ll.0:1=2");
}

TEST(config_file_reader, read_key_of_one_byte_stops) {
	struct stop_row {
		char const *name;
		std::string text;
		std::size_t stops;
		std::string before; // what is stored when the handler throws
		std::string after;  // and when it returns
	};
	for (auto const &[name, text, stops, before, after] : {
	         stop_row{"alone", "a = 1\n", 1, "", "a:1=1"},
	         stop_row{"among others", "aa = 1\nb = 2\ncc = 3\n", 1, "aa:1=1", "aa:1=1 b:1=2 cc:1=3"},
	         stop_row{"several", "a = 1\nb = 2\n", 2, "", "a:1=1 b:1=2"},
	         stop_row{"in a section", "[s]\na = 1\n", 1, "", "s:0= s.a:1=1"},
	         stop_row{"quoted", "\"a\" = 1\n", 1, "", "a:1=1"},
	         stop_row{"bracket", "] = 1\n", 1, "", "]:1=1"},
	         stop_row{"quoted bracket", "\"[\" = 1\n", 1, "", "[:1=1"},
	         stop_row{"separator", ". = 1\n", 1, "", ":1=1"},
	         stop_row{"empty value", "a =\n", 1, "", ""},
	         stop_row{"last byte", "aa = 1\nx", 1, "aa:1=1", "aa:1=1"},
	         stop_row{"last byte on its line", "x\n", 1, "", ""},
	         stop_row{"zero byte", std::string("\0= 1\n", 5), 1, "", std::string("\0:1=1", 5)},
	         stop_row{"comma is a byte of the value", "a = 1,2\n", 1, "", "a:1=1,2"},
	         stop_row{"waiting elements stay", "kk[] = 1, \"\"\na = 2\nll[] = 3\n", 1, "",
	                  "a:1=2 ll:3= ll.0:1=1 ll.1:1=3"},
	     }) {
		SCOPED_TRACE(name);
		{
			stop_handler const handler(on_stop::returns);
			EXPECT_EQ(listing_text(read_tree(text)), after);
			EXPECT_EQ(handler.count(), stops);
		}
		stop_handler const handler(on_stop::throws);
		quor::config::config_tree tree;
		quor::strings::ustring8 const copy(text);
		EXPECT_THROW(quor::config::detail::config_file_reader(copy, tree).read(), quor_test::stopped);
		EXPECT_EQ(handler.count(), 1U);
		EXPECT_EQ(listing_text(tree), before);
	}
}

quor::config::config_tree *emptied_by_handler = nullptr;

TEST(config_file_reader, read_goes_on_when_the_handler_empties_the_tree) {
	quor::config::config_tree tree;
	emptied_by_handler = &tree;
	auto const previous = quor::debug::set_invalid_parameter_handler(
	    [](char const *, char const *, unsigned int) { emptied_by_handler->erase(); });
	quor::strings::ustring8 const text("[s.t]\naa = 1\nb = 2\ncc = 3\n");
	quor::config::detail::config_file_reader(text, tree).read();
	quor::debug::set_invalid_parameter_handler(previous);
	EXPECT_EQ(listing_text(tree), "s:0= s.t:0= s.t.b:1=2 s.t.cc:1=3");
}

// A null pointer left in the tree would make it one that can't be copied.
TEST(config_file_reader, running_out_of_memory_leaves_a_tree_that_can_be_copied) {
	quor::strings::ustring8 const text("[a section with a long name.below.it]\nkey.of.parts = value\nlist[] = a, b\n");
	std::size_t failures = 0;
	for (bool failed = true; failed; failures += failed ? 1 : 0) {
		quor::config::config_tree tree;
		{
			quor_test::allocation_failure const failure(failures);
			try {
				quor::config::detail::config_file_reader(text, tree).read();
			} catch (std::bad_alloc const &) {
			}
			failed = failure.happened();
		}
		quor::config::config_tree const copy(tree);
		EXPECT_EQ(listing_text(copy), listing_text(tree));
		EXPECT_EQ(failed, listing_text(tree) != listing_text(read_tree(text)));
	}
	EXPECT_GT(failures, 10u);
}

TEST(config_file_reader, skip_comment_ends_before_the_line_end) {
	struct comment_row {
		std::string text;
		unsigned int from, to;
	};
	for (auto const &[text, from, to] : {
	         comment_row{"# note\nk", 1, 6},
	         comment_row{"# note\r\nk", 1, 6},
	         comment_row{"# note\rk", 1, 8},
	         comment_row{"#\n", 1, 1},
	         comment_row{"# a\"b\nc\" d\n", 1, 10},
	         comment_row{"# a\"b\nc", 1, 8},
	         comment_row{"# \"\\", 1, 6},
	         comment_row{"", 0, 0},
	         comment_row{"#", 1, 1},
	         comment_row{"#", 5, 5},
	     }) {
		SCOPED_TRACE(testing::PrintToString(text));
		unsigned int pos = from;
		quor::strings::ustring8 const copy(text);
		quor::config::detail::config_file_reader::skip_comment(copy, pos);
		EXPECT_EQ(pos, to);
	}
}

// The same text under the slow reader.
void expect_reference(std::string const &text) {
	stop_handler const stops(on_stop::returns);
	reference::cfg_contents const expected = reference::cfg_reader::read(text);
	ASSERT_EQ(listing_text(read_tree(text)), listing_text(quor_test::stored(expected))) << testing::PrintToString(text);
	ASSERT_EQ(stops.count(), expected.one_byte_keys) << testing::PrintToString(text);
}

std::string random_text(std::mt19937 &random, std::vector<std::string> const &pieces, std::size_t limit) {
	std::string text;
	for (std::size_t i = random() % limit; i != 0; --i) {
		text += pieces[random() % pieces.size()];
	}
	return text;
}

TEST(config_file_reader, read_agrees_with_the_slow_reader_on_every_short_text) {
	// All texts of up to five bytes from those that mean something.
	std::string const alphabet = "a=[],\"\n#/\r\\ *.";
	std::vector<std::string> texts{""};
	for (std::size_t length = 0; length != 4; ++length) {
		std::vector<std::string> longer;
		for (std::string const &text : texts) {
			for (char const unit : alphabet) {
				longer.push_back(text + unit);
			}
		}
		for (std::string const &text : longer) {
			expect_reference(text);
			expect_reference("ab[]=1," + text);
			if (HasFatalFailure()) {
				return;
			}
		}
		texts.swap(longer);
	}
}

TEST(config_file_reader, read_agrees_with_the_slow_reader_on_random_texts) {
	std::vector<std::string> const nasty{"a",    "b",    "ab", "A",  "1",    "0",    "=",
	                                     "=",    " = ",  "[",  "]",  "[]",   "[s]",  ",",
	                                     ",",    "\"",   "\n", "\n", "\r",   "\r\n", "\t",
	                                     " ",    "#",    "//", "*/", "/",    "*",    "\\",
	                                     ".",    "..",   "==", "+=", ":=",   "/=",   "\"x y\"",
	                                     "\"\"", "\\\"", "-",  "_",  "\x80", "$",    std::string(1, '\0')};
	std::vector<std::string> const likely{"key = value\n",
	                                      "kk[] = a, b,\n c\n",
	                                      "[sec.tion]\n",
	                                      "[]\n",
	                                      "# note\n",
	                                      "// note \"\n",
	                                      "ab = \"x y\" # n\n",
	                                      "A.b.C = 1\r\n",
	                                      "long.",
	                                      "k[] = 1, \"\"\n",
	                                      "[t] ",
	                                      "\"[]\" = 3\n",
	                                      "cc",
	                                      "=",
	                                      "\"",
	                                      "\n",
	                                      ".dd = 4\n",
	                                      "ee. = 5\n",
	                                      ",",
	                                      "[s.]\n"};
	std::mt19937 random(20090);
	for (int i = 0; i != 12000 && !HasFatalFailure(); ++i) {
		expect_reference(random_text(random, nasty, 40));
		expect_reference(random_text(random, likely, 20));
	}
}

TEST(config_file_reader, read_agrees_with_the_slow_reader_on_every_byte) {
	for (int unit = 0; unit != 256; ++unit) {
		for (char const *shape : {"@", "@@", "aa@=1\n", "aa=@1@\n", "[s@]\naa=1\n", "kk[]=1@,2,@\n3\n", "#@x\naa=1\n",
		                          "aa=\"@\" 1\nbb=2\n"}) {
			std::string text(shape);
			std::replace(text.begin(), text.end(), '@', static_cast<char>(unit));
			expect_reference(text);
		}
	}
}

std::string repeated(std::string const &text, std::size_t count) {
	std::string result;
	result.reserve(text.size() * count);
	for (std::size_t i = 0; i != count; ++i) {
		result += text;
	}
	return result;
}

// Each of these takes time beyond all patience, or the whole call stack, where anything
// in the reader or the tree is more than linear or recursive.
TEST(config_file_reader, read_large_texts_in_linear_time) {
	std::size_t const many = 300000;
	stop_handler const stops(on_stop::returns);
	struct large_row {
		char const *name;
		std::string text;
		std::string key; // one that is there then
	};
	std::string const dots = repeated(".", many);
	for (auto const &[name, text, key] : {
	         large_row{"deep key", dots + "aa = 1\n", dots + "aa"},
	         large_row{"deep section, many keys", "[" + dots + "]\n" + repeated("aa = 1\n", many), dots + ".aa"},
	         large_row{"deep section, many arrays", "[" + dots + "]\n" + repeated("aa[] = 1\n", many), dots + ".aa.0"},
	         large_row{"deep section, many nameless arrays", "[" + dots + "]\n" + repeated("\"[]\" = 1\n", many),
	                   dots + "..0"},
	         large_row{"many sections", repeated("[s]\nab = 1\n", many), "s.ab"},
	         large_row{"many elements", "kk[] = " + repeated("a,", many) + "b\n", "kk.299999"},
	         large_row{"many waiting elements", repeated("kk[] = a,\"\"\n", many) + "ll[] = b\n", "ll.299999"},
	         large_row{"many comments", repeated("#\n", many) + "aa = 1\n", "aa"},
	         large_row{"many comments in an array", "kk[] = a," + repeated("#\n", many) + "b\n", "kk.1"},
	         large_row{"long value", "aa = " + repeated("b ", many) + "\n", "aa"},
	         large_row{"long string", "aa = \"" + repeated("\\\"", many) + "\"\n", "aa"},
	         large_row{"open string", "aa = \"" + repeated("b", many), "aa"},
	         large_row{"many quotes", "aa = " + repeated("\"b\"", many) + "\n", "aa"},
	         large_row{"many signs", repeated("==", many) + "= 1\n", repeated("==", many)},
	         large_row{"long key", repeated("b", many) + " = 1\n", repeated("b", many)},
	     }) {
		SCOPED_TRACE(name);
		quor::config::config_tree const tree = read_tree(text);
		EXPECT_NE(tree.get_node(key), nullptr);
	}
	EXPECT_EQ(stops.count(), 0U);
}

} // namespace
