// A program that does nothing: what it costs to start and end one.
int main() {}
