#ifndef QUOR_CLI_REPORT_JSON_HPP
#define QUOR_CLI_REPORT_JSON_HPP

#include <iosfwd>
#include <string>

#include <nlohmann/json.hpp>

namespace quor_cli {

// Writes pure ASCII; bytes that are no UTF-8 become U+FFFD.
void write_json(nlohmann::ordered_json const &value, std::ostream &out);

// A text fit to be the name of a member.
std::string valid_utf8(std::string const &text);

} // namespace quor_cli

#endif
