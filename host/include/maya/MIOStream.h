// The standard streams under the unqualified names that plug-ins have used since before namespaces.
#pragma once

#include <fstream>
#include <iostream>

using std::cerr;
using std::cin;
using std::clog;
using std::cout;
using std::endl;
using std::ends;
using std::flush;
using std::fstream;
using std::ifstream;
using std::ios;
using std::ios_base;
using std::iostream;
using std::istream;
using std::ofstream;
using std::ostream;
