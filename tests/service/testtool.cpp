// Stands for the flashing tool. It prints its arguments, one on each line, and then does what the file named
// by the argument "-C" says.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

namespace {

constexpr int FloodBlocks = 100;
constexpr std::size_t BlockBytes = 1024 * 1024;

int behave(const std::string &behaviour)
{
    if (behaviour == "fail")
        std::puts("verification FAILED");
    else if (behaviour == "complain")
        std::fputs("Can't open the port\n", stderr);
    else if (behaviour == "code")
        return 3;
    else if (behaviour == "crash")
        std::abort();
    else if (behaviour == "silent")
        std::this_thread::sleep_for(std::chrono::minutes(5));
    else if (behaviour == "pause")
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
    for (int i = 0; behaviour == "flood" && i < FloodBlocks; ++i)
        std::fputs(std::string(BlockBytes, '#').c_str(), stdout);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    std::string behaviour;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        std::puts(argument.c_str());
        if (argument.starts_with("-C"))
            std::getline(std::ifstream(argument.substr(2)), behaviour);
    }
    std::fflush(stdout);
    return behave(behaviour);
}
