// Links and access rights, as the checker meets them.

#include <gtest/gtest.h>

#include <filesystem>

#include <unistd.h>

#include "catalog/checker.hpp"
#include "run_command.hpp"
#include "support/temporary_directory.hpp"
#include "told_findings.hpp"

namespace {

using lines = std::vector<std::string>;
using quor_cli::check_catalogs;
using quor_test::file_of;
using quor_test::head;
using quor_test::temporary_directory;
using quor_test::told;

std::string const itself = "3 error include-cycle: the file includes itself | include";

class posix_check : public testing::Test {
protected:
	void link(std::string const &target, std::string const &name) const {
		std::filesystem::create_symlink(target, directory.root() / name);
	}
	lines check(std::string const &name) const {
		return told(check_catalogs({(directory.root() / name).string()}, 0), directory.root().string());
	}
	temporary_directory directory;
};

// A user who may not do everything.
class plain_user {
public:
	plain_user() : m_was_root(geteuid() == 0 && seteuid(65534) == 0) {}
	~plain_user() {
		if (m_was_root) {
			EXPECT_EQ(0, seteuid(0));
		}
	}
	plain_user(plain_user const &) = delete;
	plain_user &operator=(plain_user const &) = delete;

private:
	bool m_was_root;
};

TEST_F(posix_check, a_cycle_over_a_link_to_a_directory_is_one) {
	directory.write("a.xmc", head + "<include file=\"again/a.xmc\"/>\n</xmc>");
	link(".", "again");
	EXPECT_EQ(lines{itself}, check("a.xmc"));
	EXPECT_EQ(lines{itself}, check(""));
}

TEST_F(posix_check, a_cycle_over_a_link_to_a_file_is_one) {
	directory.write("a.xmc", head + "<include file=\"b.xmc\"/>\n</xmc>");
	link("a.xmc", "b.xmc");
	EXPECT_EQ(lines{itself}, check("a.xmc"));
}

TEST_F(posix_check, the_parent_of_a_link_is_that_of_its_target) {
	directory.write("real/sub/x.txt", "");
	directory.write("real/target.xmc", file_of(""));
	directory.write("other/b.xmc", head + "<include file=\"link/../target.xmc\"/>\n</xmc>");
	link("../real/sub", "other/link");
	EXPECT_EQ(lines{}, check("other/b.xmc"));
	auto const result = check_catalogs({(directory.root() / "other/link/../target.xmc").string()}, 0);
	EXPECT_EQ(1u, result.files);
	EXPECT_TRUE(result.unreadable.empty());
}

TEST_F(posix_check, a_directory_is_read_once) {
	directory.write("one/m.xmc", file_of("<msg name=\"m\">x</msg>"));
	link("../one", "one/loop");
	link("one", "two");
	link("gone.xmc", "one/gone.xmc");
	auto const result = check_catalogs({directory.root().string()}, 0);
	EXPECT_EQ(1u, result.files);
	EXPECT_EQ(lines{}, told(result, directory.root().string()));
	EXPECT_TRUE(result.unreadable.empty());
}

TEST_F(posix_check, what_may_not_be_read_is_told) {
	using std::filesystem::permissions;
	using std::filesystem::perms;
	directory.write("fine.xmc", file_of(""));
	directory.write("deep/secret.xmc", file_of(""));
	directory.write("deep/secret.txt", "");
	directory.write("dark/a.xmc", file_of(""));
	for (auto const *const name : {"deep/secret.xmc", "deep/secret.txt", "dark"}) {
		permissions(directory.root() / name, perms::none);
	}
	{
		plain_user const user;
		for (auto const *const command : {"check", "coverage"}) {
			auto const result = quor_test::run_command({"catalog", command, directory.root().string()});
			EXPECT_EQ(2, result.status);
			EXPECT_EQ("quor: \"ROOT/dark\" can't be read\nquor: \"ROOT/deep/secret.xmc\" can't be read\n",
			          quor_test::replaced(result.err, directory.root().string(), "ROOT"));
			EXPECT_EQ(std::string::npos, result.out.find("clean"));
		}
	}
	permissions(directory.root() / "dark", perms::owner_all);
}

} // namespace
