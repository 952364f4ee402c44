#ifndef QUOR_CLI_REPORT_PAGE_PARTS_HPP
#define QUOR_CLI_REPORT_PAGE_PARTS_HPP

namespace quor_cli {

// What doesn't depend on the catalogs: the style sheet and the script of the page.
extern char const page_style[];
extern char const page_script[];

} // namespace quor_cli

#endif
