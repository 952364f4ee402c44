// A program that takes the address of a constant of an imported class asks the DLL for it,
// and the DLL has those alone whose address is taken in it: here.

#include <quor/config/config_tree.hpp>
#include <quor/i18n/xmc_file_loader.hpp>
#include <quor/serialization/labeled_text_buffer.hpp>
#include <quor/system/date_time/date.hpp>
#include <quor/system/date_time/date_time.hpp>
#include <quor/system/date_time/time.hpp>

namespace QUOR_2_9 {
namespace {

using config::config_tree;
using i18n::_private::xmc_file_loader;
using serialization::labeled_text_buffer;
using system::date_time::date;
using system::date_time::date_time_t;
using system::date_time::time;

[[gnu::used]] void const *const addresses[] = {
    &date::max_months_in_year,
    &date::max_weeks_in_year,
    &date::max_days_in_month,
    &time::min_hour,
    &time::max_hour,
    &time::min_minute,
    &time::max_minute,
    &time::min_second,
    &time::max_second,
    &time::min_millisecond,
    &time::max_millisecond,
    &date_time_t::max_months_in_year,
    &date_time_t::max_weeks_in_year,
    &date_time_t::max_days_in_month,
    &date_time_t::min_hour,
    &date_time_t::max_hour,
    &date_time_t::min_minute,
    &date_time_t::max_minute,
    &date_time_t::min_second,
    &date_time_t::max_second,
    &date_time_t::min_millisecond,
    &date_time_t::max_millisecond,
    &config_tree::flag_set,
    &config_tree::flag_array,
    &config_tree::flag_reference,
    &labeled_text_buffer::nesting_limit,
    &xmc_file_loader::max_include_depth,
    &xmc_file_loader::max_files,
};

} // namespace
} // namespace QUOR_2_9
