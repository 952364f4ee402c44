// Prints what the code page service of Windows answers, one line for each byte and each
// pair of bytes that is well-formed in a page:
//
//     932 L 81             a byte that begins pairs
//     932 = 8140 3000      bytes and code point, each the answer to the other
//     932 > ED40 7E8A      the code point is encoded in other bytes
//
// tools/code_pages compiles it, runs it and makes tables of its lines.

#include <cstddef>
#include <cstdio>
#include <iterator>

#include <windows.h>

namespace {

constexpr unsigned pages[] = {932,   936,   949,   950,   1250,  1251,  1252,  1253,  1254,  1255,  1256,  1257, 1258,
                              20866, 21866, 28591, 28592, 28593, 28594, 28595, 28596, 28597, 28598, 28599, 28605};

void show(unsigned page, char const *bytes, int count, wchar_t unit) {
	char back[8] = {};
	BOOL replaced = FALSE;
	int const length = WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, &unit, 1, back, 8, nullptr, &replaced);
	bool same = length == count && !replaced;
	std::printf("%u ", page);
	for (int i = 0; i != count; ++i) {
		same = same && back[i] == bytes[i];
	}
	std::printf("%c ", same ? '=' : '>');
	for (int i = 0; i != count; ++i) {
		std::printf("%02X", static_cast<unsigned>(static_cast<unsigned char>(bytes[i])));
	}
	std::printf(" %04X\n", static_cast<unsigned>(unit));
}

void show_pairs(unsigned page, int lead) {
	std::printf("%u L %02X\n", page, static_cast<unsigned>(lead));
	for (int trail = 1; trail != 256; ++trail) {
		char const bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
		wchar_t units[4] = {};
		if (MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes, 2, units, 4) == 1) {
			show(page, bytes, 2, units[0]);
		}
	}
}

} // namespace

int main() {
	for (unsigned const page : pages) {
		for (int byte = 0; byte != 256; ++byte) {
			if (IsDBCSLeadByteEx(page, static_cast<BYTE>(byte))) {
				show_pairs(page, byte);
				continue;
			}
			char const bytes[] = {static_cast<char>(byte)};
			wchar_t units[4] = {};
			if (MultiByteToWideChar(page, 0, bytes, 1, units, 4) == 1) {
				show(page, bytes, 1, units[0]);
			}
		}
	}
}
