# A DXF file of 49,999 lines, 5,000 circles and 5,000 arcs, which fill the table.
function record(kind, i) {
    printf "  0\r\n%s\r\n  8\r\nclay\r\n 62\r\n1\r\n  6\r\nCONTINUOUS\r\n 10\r\n%d\r\n 20\r\n%d\r\n", kind, i % 977, i % 613
}
BEGIN {
    printf "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n"
    for (i = 0; i < 59999; ++i) {
        if (i % 12 > 1) { record("LINE", i); printf " 11\r\n%d\r\n 21\r\n%d\r\n", i % 389, i % 271 }
        else if (i % 12) { record("CIRCLE", i); printf " 40\r\n%d\r\n", 1 + i % 89 }
        else { record("ARC", i); printf " 40\r\n%d\r\n 50\r\n%d\r\n 51\r\n%d\r\n", 1 + i % 89, i % 180, i % 180 + 90 }
    }
    printf "  0\r\nENDSEC\r\n  0\r\nEOF\r\n"
}
