#include "platform/wall_clock.hpp"

#include "platform/windows/windows_api.hpp"

namespace QUOR_2_9::platform {
namespace {

wall_clock_fields fields_of(SYSTEMTIME const &parts) noexcept {
	wall_clock_fields fields;
	fields.year = parts.wYear;
	fields.month = parts.wMonth;
	fields.day = parts.wDay;
	fields.hour = parts.wHour;
	fields.minute = parts.wMinute;
	fields.second = parts.wSecond;
	fields.millisecond = parts.wMilliseconds;
	return fields;
}

} // namespace

wall_clock_fields local_wall_clock() noexcept {
	SYSTEMTIME parts;
	GetLocalTime(&parts);
	return fields_of(parts);
}

wall_clock_fields utc_wall_clock() noexcept {
	SYSTEMTIME parts;
	GetSystemTime(&parts);
	return fields_of(parts);
}

} // namespace QUOR_2_9::platform
