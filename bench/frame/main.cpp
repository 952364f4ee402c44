// Runs what is named on the command line, in the options of the benchmark library and one more:
// --passes=N runs the repetitions of each operation N times.

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <regex>
#include <string>
#include <string_view>
#include <system_error>
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

[[noreturn]] void refuse(std::string const &why) {
	std::cerr << "bench: " << why << '\n';
	std::exit(EXIT_FAILURE);
}

/// Runs one operation after the other, and each in passes, in all of which every competitor has its
/// repetitions: what else the machine does at that moment slows all of them.
void run_each_operation(unsigned int passes) {
	joined_report report;
	name_filter const filter(benchmark::GetBenchmarkFilter());
	bool any = false;
	for (bench::measured const &operation : bench::operations()) {
		bool wanted = false;
		for (auto const &[name, run] : operation.competitors) {
			benchmark::RegisterBenchmark(name.c_str(), run);
			wanted = wanted || filter.takes(name);
		}
		for (unsigned int pass = 0; wanted && pass != passes; ++pass) {
			benchmark::RunSpecifiedBenchmarks(&report);
		}
		any = any || wanted;
		benchmark::ClearRegisteredBenchmarks();
	}
	if (!any) {
		refuse("nothing to measure has such a name");
	}
	report.finish();
}

/// Takes what isn't an option of the benchmark library out of a command line.
unsigned int take_passes(std::vector<char *> &options) {
	constexpr std::string_view own = "--passes=";
	unsigned int passes = 1;
	std::vector<char *> others;
	for (char *const option : options) {
		std::string_view const text = option;
		if (text.rfind("--benchmark_out", 0) == 0) {
			refuse("each pass would begin the file anew; use --benchmark_format=json >FILE");
		}
		if (text.rfind(own, 0) != 0) {
			others.push_back(option);
			continue;
		}
		char const *const end = text.data() + text.size();
		auto const [rest, error] = std::from_chars(text.data() + own.size(), end, passes);
		if (error != std::errc() || rest != end || passes == 0) {
			refuse("--passes takes a number from 1 on");
		}
	}
	options = std::move(others);
	return passes;
}

} // namespace

int main(int argc, char **argv) try {
	std::vector<char *> options(argv, argv + argc);
	unsigned int const passes = take_passes(options);
	argc = static_cast<int>(options.size());
	options.push_back(nullptr);
	benchmark::Initialize(&argc, options.data());
	if (benchmark::ReportUnrecognizedArguments(argc, options.data())) {
		return EXIT_FAILURE;
	}
	for (auto const describe : bench::entries()) {
		describe();
	}
	run_each_operation(passes);
	benchmark::Shutdown();
	return EXIT_SUCCESS;
} catch (std::regex_error const &error) {
	std::cerr << "bench: --benchmark_filter: " << error.what() << '\n';
	return EXIT_FAILURE;
}
