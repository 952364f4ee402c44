// What `quor catalog coverage` writes.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "catalog/coverage.hpp"
#include "run_command.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor_cli::percentage;
using quor_test::command_result;
using quor_test::run_command;
using quor_test::temporary_directory;

std::string const sample =
    "<?xml?><xmc version=\"1.0\"> <catalog name=\"app\" lang=\".\"><msg name=\"a\">A</msg></catalog>"
    "<catalog name=\"app\" lang=\"en\"><msg name=\"b\" meta=\"note\">B <arg name=\"x\"/></msg><msg "
    "name=\"c\">C</msg></catalog>"
    "<catalog name=\"app\" lang=\"de\"><msg name=\"b\">Bd <arg name=\"x\"/></msg></catalog>"
    "<catalog name=\"app\" lang=\"de-AT\"><msg name=\"c\">Ca &lt;&amp;&quot;</msg></catalog>"
    "<catalog name=\"app\" lang=\"fr\"><msg name=\"d\">D</msg></catalog></xmc>";

class coverage : public testing::Test {
protected:
	coverage() { directory.write("a.xmc", sample); }
	command_result run(std::vector<std::string> words = {}) const {
		words.insert(words.begin(), {"catalog", "coverage"});
		words.push_back(directory.root().string());
		return run_command(words);
	}
	temporary_directory directory;
};

TEST_F(coverage, table_shows_own_inherited_and_missing) {
	command_result const result = run();
	EXPECT_EQ(1, result.status);
	EXPECT_EQ("message  de   de_AT  en   fr\n"
	          "app/a    .    .      .    .\n"
	          "app/b    own  de     own  en\n"
	          "app/c    en   own    own  en\n"
	          "app/d    -    -      -    own\n"
	          "\n"
	          "language  own  inherited  missing  own %  shown %  inherited from\n"
	          "de        1    2          1        25.0%  75.0%    . 1, en 1\n"
	          "de_AT     1    2          1        25.0%  75.0%    . 1, de 1\n"
	          "en        2    1          1        50.0%  75.0%    . 1\n"
	          "fr        1    3          0        25.0%  100.0%   . 1, en 2\n"
	          "4 messages\n",
	          result.out);
	EXPECT_EQ("", result.err);
}

TEST_F(coverage, json_has_every_field) {
	auto const json = nlohmann::json::parse(run({"--json"}).out);
	ASSERT_EQ(4u, json.at("languages").size());
	nlohmann::json const german = {
	    {"language", "de"}, {"own", 1}, {"inherited", 2}, {"missing", 1}, {"inherited_from", {{".", 1}, {"en", 1}}}};
	EXPECT_EQ(german, json.at("languages").at(0));
	ASSERT_EQ(4u, json.at("messages").size());
	auto const &message = json.at("messages").at(1);
	EXPECT_EQ("app", message.at("catalog"));
	EXPECT_EQ("b", message.at("message"));
	EXPECT_EQ("note", message.at("meta"));
	nlohmann::json const inherited = {{"state", "inherited"}, {"from", "de"}, {"text", "Bd {x}"}};
	EXPECT_EQ(inherited, message.at("languages").at("de_AT"));
	EXPECT_EQ("missing", json.at("messages").at(3).at("languages").at("de").at("state"));
}

TEST_F(coverage, page_holds_every_text_escaped) {
	std::string const page = (directory.root() / "page.html").string();
	EXPECT_EQ(1, run({"--html", page}).status);
	std::string const text = directory.read("page.html");
	auto const has = [&text](std::string const &part) { return text.find(part) != std::string::npos; };
	EXPECT_TRUE(has("Ca &lt;&amp;&quot;</dd>"));
	EXPECT_TRUE(has("<dd dir=\"auto\" class=\"inherited\">Bd {x}</dd>"));
	EXPECT_TRUE(has("<dd dir=\"auto\" class=\"missing\">no text</dd>"));
	EXPECT_FALSE(has("http://"));
	EXPECT_FALSE(has("https://"));
	EXPECT_EQ(2, run({"--html", "no/such/directory/page.html"}).status);
}

TEST_F(coverage, page_escapes_hostile_names) {
	directory.write("b.xmc", "<?xml?><xmc version=\"1.0\"> <catalog name=\"&lt;script>alert(1)&lt;/script>\" "
	                         "lang='&quot; onload=&quot;x'><msg name='&apos;\">&lt;b>' "
	                         "meta=\"&lt;i>\">\x1B\xFF&lt;/dd></msg></catalog></xmc>");
	std::string const page = (directory.root() / "page.html").string();
	run({"--html", page});
	std::string const text = directory.read("page.html");
	for (std::string const part : {"<script>alert", "<b>", "<i>", "\x1B", "\xFF", "onload=\"", "'\"><"}) {
		EXPECT_EQ(std::string::npos, text.find(part)) << part;
	}
}

TEST_F(coverage, what_does_not_load_ends_with_two) {
	directory.write("b.xmc", "x");
	command_result const result = run();
	EXPECT_EQ(2, result.status);
	EXPECT_EQ("", result.out);
	EXPECT_NE(std::string::npos, result.err.find("quor catalog check tells more."));
	EXPECT_EQ(2, run_command({"catalog", "coverage", "no such"}).status);
}

TEST(coverage_examples, nothing_is_missing) {
	command_result const result = run_command({"catalog", "coverage", QUOR_EXAMPLES_DIR "/catalogs"});
	EXPECT_EQ(0, result.status) << result.err;
}

TEST(coverage_numbers, a_share_that_is_not_whole_never_looks_whole) {
	EXPECT_EQ("100.0%", percentage(0, 0));
	EXPECT_EQ("100.0%", percentage(3, 3));
	EXPECT_EQ("0.0%", percentage(0, 3));
	EXPECT_EQ("33.3%", percentage(1, 3));
	EXPECT_EQ("66.7%", percentage(2, 3));
	EXPECT_EQ("99.9%", percentage(9999, 10000));
	EXPECT_EQ("0.1%", percentage(1, 10000));
}

} // namespace
