// A shared library that is no plug-in.

extern "C" int answer()
{
    return 42;
}
