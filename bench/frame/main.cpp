// Runs what is named on the command line, in the options of the benchmark library.

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <regex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "registry.hpp"

namespace {

/// Tells what several runs measured as one report.
class joined_report : public benchmark::BenchmarkReporter {
public:
	joined_report() : report_(benchmark::CreateDefaultDisplayReporter()) {}

	bool ReportContext(Context const &context) override {
		if (!has_begun_) {
			Context whole = context;
			for (bench::measured const &operation : bench::operations()) {
				for (auto const &[name, run] : operation.competitors) {
					whole.name_field_width = std::max(whole.name_field_width, name.size());
				}
			}
			has_begun_ = true;
			goes_on_ = report_->ReportContext(whole);
		}
		return goes_on_;
	}

	void ReportRuns(std::vector<Run> const &report) override { report_->ReportRuns(report); }

	void finish() {
		if (has_begun_) {
			report_->Finalize();
		}
	}

private:
	std::unique_ptr<benchmark::BenchmarkReporter> report_;
	bool has_begun_ = false;
	bool goes_on_ = true;
};

/// Whether a filter of the benchmark library takes the name of a competitor.
class name_filter {
public:
	explicit name_filter(std::string filter) : negative_(!filter.empty() && filter.front() == '-') {
		if (!filter.empty() && filter != "all") {
			expression_.assign(filter.substr(negative_ ? 1 : 0), std::regex::extended);
		}
	}

	bool takes(std::string const &name) const { return std::regex_search(name, expression_) != negative_; }

private:
	bool negative_;
	std::regex expression_{"."};
};

/// Runs one operation after the other, with the competitors of each close to one another in time:
/// what else the machine does at that moment slows all of them.
void run_each_operation() {
	joined_report report;
	name_filter const filter(benchmark::GetBenchmarkFilter());
	bool any = false;
	for (bench::measured const &operation : bench::operations()) {
		bool wanted = false;
		for (auto const &[name, run] : operation.competitors) {
			benchmark::RegisterBenchmark(name.c_str(), run);
			wanted = wanted || filter.takes(name);
		}
		if (wanted) {
			benchmark::RunSpecifiedBenchmarks(&report);
			any = true;
		}
		benchmark::ClearRegisteredBenchmarks();
	}
	if (!any) {
		std::cerr << "bench: nothing to measure has such a name\n";
		std::exit(EXIT_FAILURE);
	}
	report.finish();
}

} // namespace

int main(int argc, char **argv) try {
	for (int i = 1; i < argc; ++i) {
		if (std::string_view(argv[i]).rfind("--benchmark_out", 0) == 0) {
			std::cerr << "bench: each operation would begin the file anew; use --benchmark_format=json >FILE\n";
			return EXIT_FAILURE;
		}
	}
	benchmark::Initialize(&argc, argv);
	if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
		return EXIT_FAILURE;
	}
	for (auto const describe : bench::entries()) {
		describe();
	}
	run_each_operation();
	benchmark::Shutdown();
	return EXIT_SUCCESS;
} catch (std::regex_error const &error) {
	std::cerr << "bench: --benchmark_filter: " << error.what() << '\n';
	return EXIT_FAILURE;
}
