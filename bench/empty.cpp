// A program that does nothing, to measure the start and end of a process.
int main() {}
