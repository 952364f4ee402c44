// What `quor config` writes.

#include <gtest/gtest.h>

#include "config/explain.hpp"
#include "run_command.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor::config::config_manager;
using quor::config::config_tree;
using quor::config::user_item;
using quor_test::command_result;
using quor_test::replaced;
using quor_test::run_command;
using quor_test::temporary_directory;

class config : public testing::Test {
protected:
	config() {
		directory.write("s.cfg",
		                "name = \"my \x1B[server\"\n[server]\nport = 8443\nlist[] = a, \"b c\"\n[deep]\nkey.x = 1\n");
		file = (directory.root() / "s.cfg").string();
	}
	command_result run(std::vector<std::string> words, std::vector<std::string> environment = {}) const {
		words.insert(words.begin(), "config");
		words.insert(words.begin() + 2, {"--file", file});
		return run_command(words, environment);
	}
	temporary_directory directory;
	std::string file;
};

TEST_F(config, the_command_line_wins) {
	command_result const result =
	    run({"explain", "server.port", "--env", "--", "-server.port=0x1F90"}, {"SERVER.PORT=1", "B=2"});
	EXPECT_EQ(0, result.status);
	EXPECT_EQ("server.port\n"
	          "* command line    \"0x1F90\"\n"
	          "  file            \"8443\"\n"
	          "  environment     \"1\"\n"
	          "  the command line wins, as it is the first that knows the key\n"
	          "value\n"
	          "  text            \"0x1F90\"\n"
	          "  bool            true\n"
	          "  int32           8080\n"
	          "  int64           8080\n"
	          "  uint64          8080\n"
	          "  double          0\n",
	          result.out);
	EXPECT_EQ("", result.err);
}

TEST_F(config, the_environment_is_asked_where_wanted) {
	EXPECT_EQ(1, run({"explain", "home"}, {"HOME=x"}).status);
	command_result const result = run({"explain", "home", "--env"}, {"HOME=x"});
	EXPECT_EQ(0, result.status);
	EXPECT_NE(std::string::npos, result.out.find("* environment     \"x\"\n"));
}

TEST_F(config, a_list_gives_its_first_element) {
	std::string const out = run({"explain", "server.list"}).out;
	EXPECT_NE(std::string::npos, out.find("* file            the list \"a\", \"b c\"\n"));
	EXPECT_NE(std::string::npos, out.find("; of a list, element 0 is the value\n"));
	EXPECT_NE(std::string::npos, out.find("  text            \"a\"\n"));
}

TEST_F(config, a_section_hides_what_others_say) {
	command_result const result = run({"explain", "server.port", "--", "-server.port.x=1"});
	EXPECT_EQ(1, result.status);
	EXPECT_EQ("server.port\n"
	          "* command line    a section, without a value of its own\n"
	          "  file            \"8443\"\n"
	          "  environment     no answer\n"
	          "  the command line wins, as it is the first that knows the key; deeper keys make it a section, which "
	          "has no value and hides what others say\n"
	          "no value\n",
	          result.out);
}

TEST_F(config, an_unknown_key_has_no_value) {
	command_result const result = run({"explain", "none"});
	EXPECT_EQ(1, result.status);
	EXPECT_NE(std::string::npos, result.out.find("  nobody knows the key\nno value\n"));
}

TEST_F(config, dump_lists_every_source) {
	command_result const result = run({"dump", "--env", "--", "-a=1,2", "word"}, {"LOG=on"});
	EXPECT_EQ(0, result.status);
	EXPECT_EQ("[command line]\n"
	          "a[] = \"1\", \"2\"\n"
	          "application.name = \"program\"\n"
	          "application.name.raw = \"\"\n"
	          "[file \"FILE\"]\n"
	          "deep.key.x = \"1\"\n"
	          "name = \"my \\x1B[server\"\n"
	          "server.list[] = \"a\", \"b c\"\n"
	          "server.port = \"8443\"\n"
	          "[environment]\n"
	          "log = \"on\"\n",
	          replaced(result.out, file, "FILE"));
	EXPECT_EQ("[command line]\n"
	          "a[] = \"1\", \"2\"\n"
	          "a.7 = \"z\"\n"
	          "a.x = \"3\"\n"
	          "application.name = \"program\"\n"
	          "application.name.raw = \"\"\n"
	          "b = \"5\"\n"
	          "b.0 = \"1\"\n"
	          "b.1 = \"2\"\n"
	          "[file]\n"
	          "[environment]\n",
	          run_command({"config", "dump", "--", "-a=1,2", "-a.7=z", "-a.x=3", "-b=1,2", "-b=5"}).out);
	EXPECT_EQ("Warning! unknown key:word\nIgnoring key and continuing\n", result.err);
}

TEST_F(config, a_file_that_cannot_be_used_is_told) {
	EXPECT_EQ("quor: \"no such\" can't be read\n", run_command({"config", "dump", "--file", "no such"}).err);
	directory.write("s.cfg", "k = 1\n");
	command_result const result = run({"dump"});
	EXPECT_EQ(2, result.status);
	EXPECT_EQ("quor: \"FILE\" has a key of one byte; keys in files have two or more\n",
	          replaced(result.err, file, "FILE"));
}

TEST_F(config, the_command_line_may_name_another_file) {
	directory.write("t.cfg", "kk = 1\n");
	std::string const other = (directory.root() / "t.cfg").string();
	command_result result = run({"explain", "kk", "--", "-cfg_file$" + other});
	EXPECT_EQ(0, result.status);
	EXPECT_NE(std::string::npos, result.out.find("  the file \"" + other + "\" wins, as it is")) << result.out;
	directory.write("t.cfg", "k = 1\n");
	result = run({"explain", "kk", "--", "-cfg_file$" + other});
	EXPECT_EQ("quor: \"" + other + "\" has a key of one byte; keys in files have two or more\n", result.err);
}

// Only a program's own source can refer to other keys.
class referring_dispatch : public quor::config::std_config_dispatch {
public:
	using std_config_dispatch::std_config_dispatch;
	void setup(item_list &items) const override {
		user_item values;
		values.set("a.one", "b.two", config_tree::flag_reference);
		values.set("b.two", "7", 0);
		values.set("x.one", "x.two", config_tree::flag_reference);
		values.set("x.two", "x.one", config_tree::flag_reference);
		items.emplace_back(values.clone());
	}
	referring_dispatch *clone() const override { return new referring_dispatch(*this); }
};

TEST(config_references, are_followed_hop_by_hop) {
	config_manager manager;
	manager.init(referring_dispatch(0, nullptr, nullptr, "", ""));
	manager.load();
	std::vector<quor_cli::config_source> const sources{{"user_item", "defaults"}};
	std::ostringstream out;
	quor_cli::terminal to{out, out};
	EXPECT_EQ(0, quor_cli::explain_key(manager, sources, "a.one", to));
	EXPECT_EQ(0u, out.str().find("a.one\n"
	                             "* defaults        refers to \"b.two\"\n"
	                             "  the defaults wins, as it is the first that knows the key\n"
	                             "  the reference is followed:\n"
	                             "b.two\n"
	                             "* defaults        \"7\"\n"))
	    << out.str();
	out.str("");
	EXPECT_EQ(0, quor_cli::explain_key(manager, sources, "x.one", to));
	EXPECT_NE(std::string::npos, out.str().find("x.two\n* defaults        refers to \"x.one\"\n"));
	EXPECT_NE(std::string::npos,
	          out.str().find("  the references lead in a circle, so the value is the name itself\n"));
	EXPECT_NE(std::string::npos, out.str().find("  text            \"x.one\"\n"));
}

} // namespace
