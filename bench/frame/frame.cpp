#include "frame.hpp"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "registry.hpp"

namespace bench {
namespace {

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

std::vector<measured> &operations() {
	static std::vector<measured> list;
	return list;
}

std::vector<void (*)()> &entries() {
	static std::vector<void (*)()> list;
	return list;
}

entry::entry(void (*describe)()) {
	entries().push_back(describe);
}

void operation(std::string const &name, std::string const &competitor, runner run) {
	auto const is_named = [&name](measured const &one) { return one.name == name; };
	auto place = std::find_if(operations().begin(), operations().end(), is_named);
	if (place == operations().end()) {
		place = operations().insert(place, measured{name, {}});
	}
	place->competitors.emplace_back(name + "/" + competitor, std::move(run));
}

void limit(std::string const &operation, std::string const &peer, double most, double aim, double extra_ns) {
	tell("limit", operation + "/" + peer, decimal(most) + " " + decimal(aim) + " " + decimal(extra_ns));
}

void median_limit(std::string const &part, std::string const &peer, double most) {
	tell("median", part + "/" + peer, decimal(most));
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
