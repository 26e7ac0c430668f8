"""The drawings of the program, as code: every module returns SVG text and touches no file."""
