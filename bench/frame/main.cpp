#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "frame.hpp"

namespace bench {
namespace {

std::vector<void (*)()> &entries() {
	static std::vector<void (*)()> list;
	return list;
}

// Limits and figures travel in the context of the results.
void tell(std::string const &kind, std::string const &name, std::string const &value) {
	benchmark::AddCustomContext(kind + ": " + name, value);
}

std::string decimal(double value) {
	std::ostringstream text;
	text.precision(10);
	text << value;
	return text.str();
}

} // namespace

entry::entry(void (*describe)()) {
	entries().push_back(describe);
}

void operation(std::string const &name, std::string const &competitor, std::function<void(benchmark::State &)> run) {
	benchmark::RegisterBenchmark((name + "/" + competitor).c_str(), std::move(run));
}

void limit(std::string const &operation, std::string const &peer, double most, double aim, double extra_ns) {
	tell("limit", operation + "/" + peer, decimal(most) + " " + decimal(aim) + " " + decimal(extra_ns));
}

void figure(std::string const &name, std::string const &competitor, double value) {
	tell("figure", name + "/" + competitor, decimal(value));
}

void bound(std::string const &figure, double most) {
	tell("bound", figure, decimal(most));
}

void disagree(std::string const &what) {
	std::cerr << "bench: the results differ: " << what << '\n';
	std::exit(EXIT_FAILURE);
}

} // namespace bench

int main(int argc, char **argv) {
	benchmark::Initialize(&argc, argv);
	if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
		return EXIT_FAILURE;
	}
	for (auto const describe : bench::entries()) {
		describe();
	}
	benchmark::RunSpecifiedBenchmarks();
	benchmark::Shutdown();
	return EXIT_SUCCESS;
}
