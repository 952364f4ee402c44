#include "program.hpp"

int main(int count, char **words, char **environment) {
	quor_cli::invocation call;
	if (count > 0) {
		call.arguments.assign(words + 1, words + count);
	}
	for (char **each = environment; each != nullptr && *each != nullptr; ++each) {
		call.environment.emplace_back(*each);
	}
	return quor_cli::run(call);
}
