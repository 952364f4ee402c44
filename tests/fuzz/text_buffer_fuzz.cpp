// The text buffer against its slow reading: values of any type, read from any bytes, and what was
// read is appended to buffers of both classes and read back. An input is a byte that counts
// calls, a byte for each, and the content: a call modulo 16 reads the type of that number (0 to
// 7 integers, 8 and 9 floating numbers, 10 a string, 11 a buffer), rewinds (12, 13), appends the
// buffer to itself (14) or the last value (15).

#include <cstddef>
#include <cstdint>

#include "support/buffer_calls.hpp"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	quor_test::run_buffer_calls<quor_test::serialize_text_buf, quor_reference::text_reference>(data, size);
	return 0;
}
