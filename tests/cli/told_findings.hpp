#ifndef QUOR_TESTS_CLI_TOLD_FINDINGS_HPP
#define QUOR_TESTS_CLI_TOLD_FINDINGS_HPP

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalog/checker.hpp"

namespace quor_test {

// "3 error element: text | path" for each finding, in the order of the report.
inline std::vector<std::string> told(quor_cli::check_result const &result, std::string const &directory) {
	std::vector<std::string> lines;
	for (auto const &[file, found] : result.findings.files()) {
		for (quor_cli::finding const &each : found.kept) {
			std::string line = std::to_string(each.where.line) + " ";
			line += severity_of(each.kind) == quor_cli::severity::error ? "error " : "warning ";
			line += std::string(kind_name(each.kind)) + ": " + each.text;
			std::string separator = " | ";
			for (std::string const &element : element_path(each.where)) {
				line += separator + element;
				separator = " > ";
			}
			EXPECT_EQ(severity_of(each.kind) == quor_cli::severity::error, !each.loader.empty()) << line;
			// Without the directory's changing name.
			if (std::size_t const at = line.find(directory + "/"); at != std::string::npos) {
				line.erase(at, directory.size() + 1);
			}
			lines.push_back(line);
		}
	}
	return lines;
}

inline std::string const head = "<?xml version=\"1.0\"?>\n<xmc version=\"1.1\">\n";

// A file with one catalog; its content begins on line 4.
inline std::string file_of(std::string const &content) {
	return head + "<catalog name=\"c\" lang=\"en\">\n" + content + "\n</catalog>\n</xmc>\n";
}

} // namespace quor_test

#endif
