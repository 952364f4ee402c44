// What `quor catalog check` writes, and its exit status.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "run_command.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor_test::command_result;
using quor_test::replaced;
using quor_test::run_command;
using quor_test::temporary_directory;

std::string const broken = "<?xml version=\"1.0\"?>\n<xmc version=\"1.1\">\n<catalog name=\"c\" lang=\"en\">\n"
                           "<msg name=\"m\"><b/></msg>\n<msg name=\"o\"><arg name=\"n\" type=\"time\"/></msg>\n"
                           "</catalog>\n</xmc>\n";

TEST(check_report, the_examples_are_clean) {
	command_result const result = run_command({"catalog", "check", QUOR_EXAMPLES_DIR "/catalogs"});
	EXPECT_EQ(0, result.status);
	EXPECT_EQ("8 files, 4 catalogs, 6 languages, 284 texts: clean\n", result.out);
	EXPECT_EQ("", result.err);
}

TEST(check_report, findings_are_told_with_place_and_loader) {
	temporary_directory const directory;
	directory.write("a.xmc", broken);
	command_result const result = run_command({"catalog", "check", directory.root().string()});
	EXPECT_EQ(1, result.status);
	EXPECT_EQ("DIR/a.xmc:4: error: <b> can't stand in <msg>; <msg> takes text, <arg> and <br/> [element]\n"
	          "    in catalog \"c\" (en) > msg \"m\" > b\n"
	          "    loader: xmc_file_loader::load_error - Invalid element \"b\"\n"
	          "            in message element: \"m\"\n"
	          "            in catalog element: \"c\"\n"
	          "            in file: \"DIR/a.xmc\"\n"
	          "DIR/a.xmc:5: warning: the type \"time\" is reserved and always shows \"?invalid?\"; give the "
	          "program's own text as a string [type-reserved]\n"
	          "    in catalog \"c\" (en) > msg \"o\" > arg \"n\"\n"
	          "1 file, 1 catalog, 1 language, 1 text: 1 error, 1 warning\n",
	          replaced(result.out, directory.root().string(), "DIR"));
}

TEST(check_report, colours_and_progress_are_for_terminals) {
	temporary_directory const directory;
	directory.write("a.xmc", broken);
	directory.write("b.xmc", broken);
	std::ostringstream out;
	std::ostringstream err;
	quor_cli::terminal to{out, err, true, true, true};
	EXPECT_EQ(1, quor_cli::run({{"catalog", "check", directory.root().string()}, {}}, to));
	EXPECT_NE(std::string::npos, out.str().find("\x1B[31merror:\x1B[0m"));
	EXPECT_NE(std::string::npos, err.str().find("\rchecking [............"));
	EXPECT_EQ("\r\x1B[K", err.str().substr(err.str().size() - 4));
}

TEST(check_report, json_has_every_field) {
	temporary_directory const directory;
	directory.write("a.xmc", broken);
	directory.write("\xC3\xA4.xmc", replaced(broken, "\"m\"", "\"\xFF\x1B\""));
	command_result const result = run_command({"catalog", "check", "--json", directory.root().string(), "no such"});
	EXPECT_EQ(2, result.status);
	for (char const each : result.out) {
		EXPECT_TRUE(each == '\n' || (each >= 0x20 && each < 0x7F));
	}
	nlohmann::json const json = nlohmann::json::parse(result.out);
	EXPECT_EQ(2, json.at("files"));
	EXPECT_EQ(1, json.at("catalogs"));
	EXPECT_EQ(1, json.at("languages"));
	EXPECT_EQ(2, json.at("texts"));
	EXPECT_EQ(2, json.at("errors"));
	EXPECT_EQ(2 + 1, json.at("warnings"));
	EXPECT_EQ(nlohmann::json::array({"no such"}), json.at("unreadable"));
	EXPECT_EQ(nlohmann::json::object(), json.at("omitted"));
	ASSERT_EQ(5u, json.at("findings").size());
	nlohmann::json const first = json.at("findings").at(0);
	nlohmann::json const expected = {
	    {"kind", "element"},
	    {"severity", "error"},
	    {"file", directory.root().string() + "/a.xmc"},
	    {"line", 4},
	    {"path", {"catalog \"c\" (en)", "msg \"m\"", "b"}},
	    {"catalog", "c"},
	    {"language", "en"},
	    {"message", "m"},
	    {"argument", ""},
	    {"text", "<b> can't stand in <msg>; <msg> takes text, <arg> and <br/>"},
	    {"loader", "xmc_file_loader::load_error - Invalid element \"b\"\n in message element: \"m\"\n in catalog "
	               "element: \"c\"\n in file: \"" +
	                   directory.root().string() + "/a.xmc\""}};
	EXPECT_EQ(expected, first);
	for (auto const &each : json.at("findings")) {
		EXPECT_EQ(expected.size(), each.size());
	}
}

TEST(check_report, limit_counts_the_rest) {
	temporary_directory const directory;
	directory.write("a.xmc", replaced(broken, "<msg name=\"m\">", "<msg name=\"m\"><b/></msg><msg name=\"m\">"));
	std::string const path = directory.root().string();
	command_result const text = run_command({"catalog", "check", "--limit", "1", path});
	EXPECT_NE(std::string::npos, replaced(text.out, path, "DIR").find("\nDIR/a.xmc: and 2 findings more\n"));
	auto const json = nlohmann::json::parse(run_command({"catalog", "check", "--json", "--limit=1", path}).out);
	EXPECT_EQ(1u, json.at("findings").size());
	EXPECT_EQ(2, json.at("omitted").at(path + "/a.xmc"));
	EXPECT_EQ(2, json.at("errors"));
}

TEST(check_report, what_cannot_be_read_ends_with_two) {
	command_result const missing = run_command({"catalog", "check", "no/such\x1B.xmc"});
	EXPECT_EQ(2, missing.status);
	EXPECT_EQ("quor: \"no/such\\x1B.xmc\" can't be read\n", missing.err);
	EXPECT_EQ("0 files, 0 catalogs, 0 languages, 0 texts: 0 errors, 0 warnings, 1 path unreadable\n", missing.out);
	EXPECT_EQ(2, run_command({"catalog", "check", ""}).status);
	EXPECT_EQ("quor: --limit: \"-3\" is no count\nTry \"quor --help\".\n",
	          run_command({"catalog", "check", "--limit", "-3", "."}).err);
	EXPECT_EQ(2, run_command({"catalog", "check"}).status);
	EXPECT_EQ(2, run_command({"catalog"}).status);
	EXPECT_EQ(2, run_command({}).status);
	EXPECT_EQ(2, run_command({"catalog", "check", "--limit", "x", "."}).status);
	EXPECT_EQ(2, run_command({"catalog", "check", "--no-such"}).status);
	EXPECT_EQ("quor: The following argument was not expected: --no-such\nTry \"quor --help\".\n",
	          run_command({"catalog", "check", "--no-such", "."}).err);
}

TEST(check_report, a_file_that_is_included_and_listed_is_told_once) {
	temporary_directory const directory;
	directory.write("a.xmc", "<?xml?><xmc version=\"1.0\"> <include file=\"./sub/../b.xmc\"/></xmc>");
	directory.write("b.xmc", broken);
	directory.write("c.txt", broken);
	directory.write("d.XML", broken);
	std::string const path = directory.root().string();
	auto const json = nlohmann::json::parse(run_command({"catalog", "check", "--json", path, path + "/b.xmc"}).out);
	EXPECT_EQ(3, json.at("files"));
	EXPECT_EQ(2, json.at("errors"));
}

TEST(check_report, two_dashes_end_the_options) {
	temporary_directory const directory;
	directory.write("a.xmc", broken);
	directory.write("b.xmc", broken);
	std::string const a = (directory.root() / "a.xmc").string();
	std::string const b = (directory.root() / "b.xmc").string();
	EXPECT_EQ(0u, run_command({"catalog", "check", "--", a, b}).err.size());
	EXPECT_NE(std::string::npos, run_command({"catalog", "check", a, "--", b}).out.find("2 files"));
	EXPECT_EQ("quor: \"./--json\" can't be read\n", run_command({"catalog", "check", "--", "--json"}).err);
}

TEST(check_report, help_and_version_are_clean) {
	EXPECT_EQ(0, run_command({"--help"}).status);
	EXPECT_EQ(0, run_command({"catalog", "check", "--help"}).status);
	EXPECT_NE(std::string::npos,
	          run_command({"catalog", "check", "--help"}).out.find("quor catalog check translations/"));
	EXPECT_EQ(0u, run_command({"--version"}).out.find("quor 2.9."));
}

} // namespace
