// Prints its program folder.
#include <iostream>

#include "ui/program_folder.h"

int main(int /*argc*/, char** argv) { std::cout << tasca::ProgramFolder(argv[0]).native(); }
