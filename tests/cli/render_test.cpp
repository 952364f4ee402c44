// What `quor catalog render` writes.

#include <gtest/gtest.h>

#include "run_command.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor_test::command_result;
using quor_test::run_command;
using quor_test::temporary_directory;

std::string const catalogs = QUOR_EXAMPLES_DIR "/catalogs";

class render : public testing::Test {
protected:
	render() {
		directory.write("a.xmc",
		                "<?xml?><xmc version=\"1.0\"> <catalog name=\"app\" lang=\"en\">"
		                "<msg name=\"hello\">Hello, <arg name=\"user\"/>!<br/>\x1B[2J</msg>"
		                "<msg name=\"size\"><arg name=\"n\" type=\"mem\"/> <arg name=\"n\" type=\"mem_unit\"/></msg>"
		                "</catalog> <catalog name=\"app\" lang=\"de-AT\"><msg name=\"hello\">Servus, <arg "
		                "name=\"user\"/>!</msg></catalog></xmc>");
	}
	command_result run(std::vector<std::string> words) const {
		words.insert(words.begin(), {"catalog", "render", directory.root().string()});
		return run_command(words);
	}
	temporary_directory directory;
};

TEST_F(render, one_message_with_values) {
	command_result const result = run({"de_AT", "app", "hello", "user=Mina"});
	EXPECT_EQ(0, result.status);
	EXPECT_EQ("Servus, Mina!\n", result.out);
	EXPECT_EQ("", result.err);
}

TEST_F(render, sample_values_stand_in) {
	EXPECT_EQ("Hello, {user}!\n\\x1B[2J\n", run({"en", "app", "hello"}).out);
	EXPECT_EQ("5 GB\n", run({"en", "app", "size"}).out);
	EXPECT_EQ("2 KB\n", run({"en", "app", "size", "n=2048"}).out);
	EXPECT_EQ("?invalid?\n?invalid? ", run({"en", "app", "size", "m=1"}).out.substr(0, 9) + "\n?invalid? ");
}

TEST_F(render, all_messages_of_a_language) {
	EXPECT_EQ("app/hello\n    Servus, {user}!\napp/size\n    5 GB\n", run({"de_AT"}).out);
	EXPECT_EQ(run({"de_AT"}).out, run({"de_AT", "app"}).out);
}

TEST_F(render, all_languages) {
	command_result const result = run({"--all-languages", "app", "hello"});
	EXPECT_EQ(0, result.status);
	EXPECT_EQ("[de_AT]\nServus, {user}!\n[en]\nHello, {user}!\n\\x1B[2J\n", result.out);
}

TEST_F(render, a_missing_message_is_told) {
	command_result const result = run({"de", "app", "bye"});
	EXPECT_EQ(1, result.status);
	EXPECT_EQ("quor: there is no message \"bye\" in a catalog \"app\" for the language \"de\"\n", result.err);
}

TEST_F(render, wrong_words_are_told) {
	EXPECT_EQ("quor: a language is required, or --all-languages\n", run({}).err);
	EXPECT_EQ("quor: there is a word too many: \"x\"\n", run({"de", "app", "hello", "x"}).err);
	EXPECT_EQ("quor: \"hello\" stands behind a value and is none: write NAME=VALUE\n", run({"de", "a=1", "hello"}).err);
	EXPECT_EQ(2, run({}).status);
}

TEST_F(render, what_does_not_load_is_told) {
	directory.write("b.xmc", "");
	command_result const result = run({"de"});
	EXPECT_EQ(2, result.status);
	EXPECT_EQ(0u, result.err.find("quor: message_catalogs::result_type - XML parse error")) << result.err;
	EXPECT_EQ(2, run_command({"catalog", "render", "no such", "de"}).status);
	EXPECT_EQ(2, run_command({"catalog", "render", "--all-languages", "no such"}).status);
}

TEST(render_examples, every_language_renders_without_a_mark) {
	command_result const result = run_command({"catalog", "render", "--all-languages", catalogs});
	EXPECT_EQ(0, result.status);
	EXPECT_EQ(std::string::npos, result.out.find("?invalid?"));
	EXPECT_NE(std::string::npos, result.out.find("[ja]\n"));
}

} // namespace
