#ifndef QUOR_CLI_REPORT_COVERAGE_REPORT_HPP
#define QUOR_CLI_REPORT_COVERAGE_REPORT_HPP

#include <iosfwd>
#include <string>

#include "catalog/coverage.hpp"
#include "terminal/terminal.hpp"

namespace quor_cli {

void write_coverage_text(coverage const &measured, terminal &to);
void write_coverage_json(coverage const &measured, std::ostream &out);

// One page that needs nothing else.
std::string coverage_html(coverage const &measured);

} // namespace quor_cli

#endif
