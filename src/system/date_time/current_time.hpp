#ifndef QUOR_SYSTEM_DATE_TIME_CURRENT_TIME_HPP
#define QUOR_SYSTEM_DATE_TIME_CURRENT_TIME_HPP

#include <quor/system/date_time/date.hpp>
#include <quor/system/date_time/time.hpp>

#include "platform/wall_clock.hpp"

namespace QUOR_2_9::system::date_time::detail {

inline date date_of(platform::wall_clock_fields const &fields) {
	return date(fields.day, fields.month, fields.year);
}

/// A leap second is the second before it: there is no 60.
inline time time_of(platform::wall_clock_fields const &fields) {
	return time(fields.hour, fields.minute, fields.second == 60 ? 59 : fields.second, fields.millisecond);
}

} // namespace QUOR_2_9::system::date_time::detail

#endif
