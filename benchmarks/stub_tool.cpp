// A tool that does nothing, in place of dcmodify: what is left is the cost of starting it.
int main()
{
    return 0;
}
