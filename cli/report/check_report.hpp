#ifndef QUOR_CLI_REPORT_CHECK_REPORT_HPP
#define QUOR_CLI_REPORT_CHECK_REPORT_HPP

#include "catalog/checker.hpp"
#include "terminal/terminal.hpp"

namespace quor_cli {

void write_check_text(check_result const &result, terminal &to);
void write_check_json(check_result const &result, std::ostream &out);

} // namespace quor_cli

#endif
