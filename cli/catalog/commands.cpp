#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "catalog/checker.hpp"
#include "catalog/coverage.hpp"
#include "catalog/render.hpp"
#include "command.hpp"
#include "report/check_report.hpp"
#include "report/coverage_report.hpp"

namespace quor_cli {

namespace {

struct check_options {
	std::vector<std::string> paths;
	std::size_t limit = 100;
	bool json = false;
};

int check(check_options const &options, terminal &to) {
	check_result result;
	{
		progress_bar bar(to, "checking");
		result = check_catalogs(options.paths, options.limit,
		                        [&bar](std::size_t done, std::size_t all) { bar.show(done, all); });
	}
	if (options.json) {
		write_check_json(result, to.out);
	} else {
		write_check_text(result, to);
	}
	if (!result.unreadable.empty()) {
		return exit_unusable;
	}
	return result.findings.errors() + result.findings.warnings() == 0 ? exit_clean : exit_findings;
}

void add_check(CLI::App &catalog, action &chosen) {
	auto const options = std::make_shared<check_options>();
	CLI::App &app = *catalog.add_subcommand("check", "Find everything that is wrong with catalog files");
	app.add_option("PATH", options->paths, "Catalog files, and directories of them")->required();
	app.add_option("--limit", options->limit, "Findings to show for each file; the rest is counted; 0 shows all")
	    ->check([](std::string const &text) {
		    return text.find_first_not_of("0123456789") == std::string::npos ? "" : "\"" + text + "\" is no count";
	    })
	    ->capture_default_str();
	app.add_flag("--json", options->json, "Write JSON, for programs");
	app.footer("Reads every file to its end and for every language in it. Errors make the loader\n"
	           "refuse the file; warnings load and are surely wrong all the same.\n"
	           "\n"
	           "Examples:\n"
	           "  quor catalog check translations/\n"
	           "  quor catalog check --json app.xmc errors.xml\n");
	app.callback([options, &chosen] { chosen = [options](terminal &to) { return check(*options, to); }; });
}

struct coverage_options {
	std::vector<std::string> paths;
	std::string html;
	bool json = false;
};

coverage measure(coverage_options const &options, terminal &to) {
	progress_bar bar(to, "loading");
	return measure_coverage(options.paths, [&bar](std::size_t done, std::size_t all) { bar.show(done, all); });
}

int cover(coverage_options const &options, terminal &to) {
	coverage const measured = measure(options, to);
	for (std::string const &path : measured.unreadable) {
		to.err << "quor: \"" << printable(path) << "\" can't be read\n";
	}
	if (!measured.fault.empty()) {
		to.err << "quor: " << printable(measured.fault, true) << "\nquor catalog check tells more.\n";
	}
	if (!measured.unreadable.empty() || !measured.fault.empty()) {
		return exit_unusable;
	}
	if (options.json) {
		write_coverage_json(measured, to.out);
	} else {
		write_coverage_text(measured, to);
	}
	using quor::strings::ustring8;
	if (!options.html.empty() &&
	    quor::system::store_file(ustring8(options.html), ustring8(coverage_html(measured))) != 0) {
		to.err << "quor: \"" << printable(options.html) << "\" can't be written\n";
		return exit_unusable;
	}
	for (language_total const &total : measured.totals) {
		if (total.missing != 0) {
			return exit_findings;
		}
	}
	return exit_clean;
}

void add_coverage(CLI::App &catalog, action &chosen) {
	auto const options = std::make_shared<coverage_options>();
	CLI::App &app = *catalog.add_subcommand("coverage", "Show which messages each language has");
	app.add_option("PATH", options->paths, "Catalog files, and directories of them")->required();
	app.add_option("--html", options->html, "Write a page with a filter and rendered texts to this file too");
	app.add_flag("--json", options->json, "Write JSON, for programs");
	app.footer("A text is \"own\" where the language has it, otherwise the table names the language that\n"
	           "it is inherited from; \"-\" is a message without any text for the language. Exit status\n"
	           "1 tells that a text is missing.\n"
	           "\n"
	           "Examples:\n"
	           "  quor catalog coverage translations/\n"
	           "  quor catalog coverage --html coverage.html translations/\n");
	app.callback([options, &chosen] { chosen = [options](terminal &to) { return cover(*options, to); }; });
}

struct render_options {
	std::string path;
	std::vector<std::string> words;
	bool all_languages = false;
};

void add_render(CLI::App &catalog, action &chosen) {
	auto const options = std::make_shared<render_options>();
	CLI::App &app = *catalog.add_subcommand("render", "Show messages as a program would");
	app.add_option("PATH", options->path, "A catalog file, or a directory of them")->required();
	app.add_option("WORD", options->words, "Language, catalog, key, and values for the arguments");
	app.add_flag("--all-languages", options->all_languages, "Every language in the files; LANGUAGE is left out");
	app.footer("The words: LANGUAGE [CATALOG [KEY]] [NAME=VALUE ...]\n"
	           "Without values, sample values stand in that suit the type of each argument.\n"
	           "\n"
	           "Examples:\n"
	           "  quor catalog render translations/ de\n"
	           "  quor catalog render translations/ de app greeting user=Mina\n"
	           "  quor catalog render --all-languages translations/ app greeting\n");
	app.callback([options, &chosen] {
		chosen = [options](terminal &to) {
			return render(parse_render_words(options->path, options->words, options->all_languages), to);
		};
	});
}

} // namespace

void add_catalog_commands(CLI::App &app, action &chosen) {
	CLI::App &catalog = *app.add_subcommand("catalog", "Message catalogs: check, coverage, render");
	catalog.require_subcommand(1);
	add_check(catalog, chosen);
	add_coverage(catalog, chosen);
	add_render(catalog, chosen);
}

} // namespace quor_cli
