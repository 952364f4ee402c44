#include "report/check_report.hpp"

#include <ostream>

#include "report/json.hpp"

namespace quor_cli {

namespace {

std::string counted(std::size_t count, std::string const &what) {
	return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string joined(std::vector<std::string> const &path) {
	std::string result;
	for (std::string const &each : path) {
		result += (result.empty() ? "" : " > ") + each;
	}
	return result;
}

void write_finding(finding const &found, terminal &to) {
	bool const colours = to.out_has_colours;
	bool const is_error = severity_of(found.kind) == severity::error;
	std::string where = printable(found.file);
	if (found.where.line != 0) {
		where += ":" + std::to_string(found.where.line);
	}
	to.out << coloured(where + ":", colour::bold, colours) << ' '
	       << coloured(is_error ? "error:" : "warning:", is_error ? colour::red : colour::yellow, colours) << ' '
	       << printable(found.text) << ' '
	       << coloured(std::string("[").append(kind_name(found.kind)).append("]"), colour::faint, colours) << '\n';
	if (std::string const path = joined(element_path(found.where)); !path.empty()) {
		to.out << "    in " << printable(path) << '\n';
	}
	if (!found.loader.empty()) {
		// Its lines, each behind the same margin.
		std::string told = printable(found.loader, true);
		for (std::size_t at = told.find('\n'); at != std::string::npos; at = told.find('\n', at + 1)) {
			told.insert(at + 1, "           ");
		}
		to.out << coloured("    loader: " + told, colour::faint, colours) << '\n';
	}
}

nlohmann::ordered_json finding_json(finding const &found) {
	return {{"kind", kind_name(found.kind)},
	        {"severity", severity_of(found.kind) == severity::error ? "error" : "warning"},
	        {"file", found.file},
	        {"line", found.where.line},
	        {"path", element_path(found.where)},
	        {"catalog", found.where.catalog},
	        {"language", found.where.language},
	        {"message", found.where.message},
	        {"argument", found.where.argument},
	        {"text", found.text},
	        {"loader", found.loader}};
}

} // namespace

void write_check_text(check_result const &result, terminal &to) {
	for (auto const &[file, found] : result.findings.files()) {
		for (finding const &each : found.kept) {
			write_finding(each, to);
		}
		if (found.omitted != 0) {
			to.out << coloured(printable(file) + ":", colour::bold, to.out_has_colours) << " and "
			       << counted(found.omitted, "finding") << " more\n";
		}
	}
	for (std::string const &path : result.unreadable) {
		to.err << "quor: \"" << printable(path) << "\" can't be read\n";
	}
	to.out << counted(result.files, "file") << ", " << counted(result.catalogs, "catalog") << ", "
	       << counted(result.languages, "language") << ", " << counted(result.messages, "text") << ": ";
	std::string summary =
	    counted(result.findings.errors(), "error") + ", " + counted(result.findings.warnings(), "warning");
	if (!result.unreadable.empty()) {
		summary += ", " + counted(result.unreadable.size(), "path") + " unreadable";
	}
	bool const clean = result.findings.errors() + result.findings.warnings() == 0 && result.unreadable.empty();
	to.out << coloured(clean ? "clean" : summary, clean ? colour::green : colour::red, to.out_has_colours) << '\n';
}

void write_check_json(check_result const &result, std::ostream &out) {
	nlohmann::ordered_json findings = nlohmann::ordered_json::array();
	nlohmann::ordered_json omitted = nlohmann::ordered_json::object();
	for (auto const &[file, found] : result.findings.files()) {
		for (finding const &each : found.kept) {
			findings.push_back(finding_json(each));
		}
		if (found.omitted != 0) {
			omitted[valid_utf8(file)] = found.omitted;
		}
	}
	write_json({{"files", result.files},
	            {"catalogs", result.catalogs},
	            {"languages", result.languages},
	            {"texts", result.messages},
	            {"errors", result.findings.errors()},
	            {"warnings", result.findings.warnings()},
	            {"findings", findings},
	            {"omitted", omitted},
	            {"unreadable", result.unreadable}},
	           out);
}

} // namespace quor_cli
