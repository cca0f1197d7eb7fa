/// What the font libraries keep until the process ends. Theirs alone: what we lose is still found.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\nleak:libpango";
}
