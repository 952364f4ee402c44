// Numbers the lines of standard input and tells how long each one is, through the wide
// standard streams, in the encoding of the user's locale:
//
//   printf 'caf\303\251\n' | LC_ALL=C.UTF-8 wide_lines

#include <clocale>
#include <cstddef>
#include <cstdio>
#include <string>

#include <quor/quor.hpp>

namespace {

namespace strings = quor::strings;
using strings::ustring16;
using strings::gh2::ucerr;
using strings::gh2::ucin;
using strings::gh2::ucout;

// A pair of surrogates is one character.
std::size_t characters(ustring16 const &text) {
	std::size_t count = 0;
	for (auto const unit : text) {
		count += unit >= 0xDC00 && unit <= 0xDFFF ? 0 : 1;
	}
	return count;
}

bool number_lines() {
	std::wstring line;
	for (unsigned int number = 1; std::getline(ucin, line); ++number) {
		ustring16 const text = strings::from_native_wide(line);
		ucout.width(3);
		ucout << number << L"  " << text << L"  (" << characters(text) << L" characters, " << text.size()
		      << L" units)\n";
	}
	// Bytes that the locale can't read end the input like the end of the file; the C stream
	// tells the two apart.
	return std::ferror(stdin) == 0;
}

} // namespace

int main() {
	// Before the first use of the streams. Without it they pass ASCII alone.
	std::setlocale(LC_ALL, "");
	bool const read = number_lines();
	if (!read) {
		ucerr << ustring16(QUOR_W("wide_lines: the input has a character that this locale lacks\n"));
	}
	if (!ucout.flush()) {
		ucerr << ustring16(QUOR_W("wide_lines: the output has a character that this locale lacks\n"));
	}
	return read && ucout ? 0 : 1;
}
