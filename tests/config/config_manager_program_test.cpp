// A whole program's settings: arguments, environment and a file on the disk together.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "support/stop_handler.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor::config::config_manager;
using quor::config::std_config_dispatch;
using quor::strings::ustring8;
using quor::types::variant;
using quor_test::temporary_directory;
using quor_test::working_directory;

class program_settings : public testing::Test {
protected:
	void SetUp() override {
		m_directory.write("service.cfg", "# settings of the service\n"
		                                 "top = 1                // no section\n"
		                                 "[server]\n"
		                                 "host = alpha\n"
		                                 "port = 8080\n"
		                                 "name = \"my server\"\n"
		                                 "list[] = a, b,         # goes on\n"
		                                 "         c\r\n"
		                                 "[server.log]\n"
		                                 "level = 3\n");
		static char const *const argv[] = {"service.exe", "-server.port=9090", "-verbose",          "-users", "ann",
		                                   "bob",         "-title$a,b",        "/server/log/level", "-name"};
		static char const *const envp[] = {"SERVER.HOST=beta", "HOME=C:\\Program Files", "server.log.file=out.log",
		                                   nullptr};
		working_directory const here(m_directory.root());
		m_manager.init(std_config_dispatch(9, argv, envp, "", ""));
		ASSERT_TRUE(m_manager.load());
	}

	std::string value(char const *key) const {
		variant const found = m_manager.get_value(key);
		return found == quor::types::nil ? "nil" : found.as_string();
	}

	temporary_directory m_directory;
	config_manager m_manager;
};

TEST_F(program_settings, values_come_from_the_source_of_highest_precedence) {
	struct row {
		char const *key;
		char const *expected;
	};
	for (row const each : {row{"application.name", "service.exe"},
	                       {"application.name.extention", "exe"},
	                       {"application.name.raw", "service"},
	                       {"top", "1"},
	                       {"server.host", "alpha"},
	                       {"server.port", "9090"},
	                       {"SERVER/NAME", "my server"},
	                       {"server.list", "a"},
	                       {"server.list.2", "c"},
	                       {"server.list.3", "nil"},
	                       {"server.log.level", ""},
	                       {"server.log.file", "out.log"},
	                       {"server", "nil"},
	                       {"verbose", ""},
	                       {"users", "ann"},
	                       {"users.1", "bob"},
	                       {"title", "a,b"},
	                       {"name", ""},
	                       {"home", "C:\\ProgramFiles"},
	                       {"none", "nil"},
	                       {"", "nil"}}) {
		EXPECT_EQ(each.expected, value(each.key)) << each.key;
	}
	EXPECT_EQ(9090, m_manager.get_value("server.port").as_int());
	EXPECT_TRUE(m_manager.get_value("server.port").type() == typeid(ustring8));
}

TEST_F(program_settings, arrays_and_listings_are_those_of_one_source) {
	std::vector<variant> elements;
	m_manager.get_array("server.list", elements);
	m_manager.get_array("users", elements);
	std::string joined;
	for (variant const &element : elements) {
		joined += element.as_string() + ";";
	}
	EXPECT_EQ("a;b;c;ann;bob;", joined);
	std::vector<std::pair<ustring8, variant>> entries;
	m_manager.get_key_value_array("server", entries, true);
	joined.clear();
	for (auto const &[name, entry] : entries) {
		joined += name + "=" + entry.as_string() + ";";
	}
	EXPECT_EQ("log=;log.level=;port=9090;", joined) << "those of the command line, which knows the section too";
}

TEST_F(program_settings, dump_shows_every_source) {
	std::ostringstream stream;
	stream << m_manager;
	EXPECT_EQ("config_manager:\n"
	          "\nconfig_item:\n"
	          "object : command line\n"
	          "|---------------\\\n"
	          "|\t\tapplication : true\n"
	          "|\t\t|---------------\\\n"
	          "|\t\t|\t\tname : 1 service.exe\n"
	          "|\t\t|\t\t|---------------\\\n"
	          "|\t\t|\t\t|\t\textention : 1 exe\n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\traw : 1 service\n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\tend\n"
	          "|\t\t|\t\tend\n"
	          "|\t\tname : 1 \n"
	          "|\t\t|\n"
	          "|\t\tserver : true\n"
	          "|\t\t|---------------\\\n"
	          "|\t\t|\t\tlog : true\n"
	          "|\t\t|\t\t|---------------\\\n"
	          "|\t\t|\t\t|\t\tlevel : 1 \n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\tend\n"
	          "|\t\t|\t\tport : 1 9090\n"
	          "|\t\t|\t\t|\n"
	          "|\t\t|\t\tend\n"
	          "|\t\ttitle : 1 a,b\n"
	          "|\t\t|\n"
	          "|\t\tusers : 3 \n"
	          "|\t\t|---------------\\\n"
	          "|\t\t|\t\t0 : 1 ann\n"
	          "|\t\t|\t\t|\n"
	          "|\t\t|\t\t1 : 1 bob\n"
	          "|\t\t|\t\t|\n"
	          "|\t\t|\t\tend\n"
	          "|\t\tverbose : 1 \n"
	          "|\t\t|\n"
	          "|\t\tend\n"
	          "end\n"
	          "\nconfig_item:\n"
	          "object : standard file\n"
	          "|---------------\\\n"
	          "|\t\tserver : true\n"
	          "|\t\t|---------------\\\n"
	          "|\t\t|\t\thost : 1 alpha\n"
	          "|\t\t|\t\t|\n"
	          "|\t\t|\t\tlist : 3 \n"
	          "|\t\t|\t\t|---------------\\\n"
	          "|\t\t|\t\t|\t\t0 : 1 a\n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\t1 : 1 b\n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\t2 : 1 c\n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\tend\n"
	          "|\t\t|\t\tlog : true\n"
	          "|\t\t|\t\t|---------------\\\n"
	          "|\t\t|\t\t|\t\tlevel : 1 3\n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\tend\n"
	          "|\t\t|\t\tname : 1 my server\n"
	          "|\t\t|\t\t|\n"
	          "|\t\t|\t\tport : 1 8080\n"
	          "|\t\t|\t\t|\n"
	          "|\t\t|\t\tend\n"
	          "|\t\ttop : 1 1\n"
	          "|\t\t|\n"
	          "|\t\tend\n"
	          "end\n"
	          "\nconfig_item:\n"
	          "object : enviroment\n"
	          "|---------------\\\n"
	          "|\t\thome : 1 C:\\ProgramFiles\n"
	          "|\t\t|\n"
	          "|\t\tserver : true\n"
	          "|\t\t|---------------\\\n"
	          "|\t\t|\t\thost : 1 beta\n"
	          "|\t\t|\t\t|\n"
	          "|\t\t|\t\tlog : true\n"
	          "|\t\t|\t\t|---------------\\\n"
	          "|\t\t|\t\t|\t\tfile : 1 out.log\n"
	          "|\t\t|\t\t|\t\t|\n"
	          "|\t\t|\t\t|\t\tend\n"
	          "|\t\t|\t\tend\n"
	          "|\t\tend\n"
	          "end\n"
	          "\nno more config_items!\n\nending output\n",
	          stream.str());
}

TEST(program_that_loads_a_bad_file, keeps_what_came_before_the_bad_key) {
	temporary_directory const directory;
	directory.write("bad.cfg", "before = 1\nx = 2\nafter = 3\n");
	char const *const argv[] = {"service.exe", "-given=4"};
	char const *const envp[] = {"REGION=north", nullptr};
	config_manager manager;
	manager.init(std_config_dispatch(2, argv, envp, directory.path("bad.cfg"), ""));
	{
		quor_test::stop_handler const stops(quor_test::on_stop::throws);
		EXPECT_THROW(manager.load(), quor_test::stopped);
	}
	EXPECT_TRUE(manager.value_exist("given"));
	EXPECT_TRUE(manager.value_exist("before"));
	EXPECT_FALSE(manager.value_exist("x") || manager.value_exist("after"));
	EXPECT_FALSE(manager.value_exist("region")) << "the environment comes behind the file";
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	EXPECT_TRUE(manager.load());
	EXPECT_EQ(1U, stops.count());
	EXPECT_EQ("2", manager.get_value("x").as_string());
	EXPECT_EQ("3", manager.get_value("after").as_string());
	EXPECT_EQ("north", manager.get_value("region").as_string());
	EXPECT_TRUE(manager.unload());
	EXPECT_FALSE(manager.value_exist("before"));
}

TEST_F(program_settings, references_cross_the_sources) {
	m_manager.get_config_item("enviroment")->set("where", "SERVER\\port", 4);
	m_manager.get_config_item("command line")->set("again", "Where", 4);
	EXPECT_EQ("9090", value("again"));
}

} // namespace
