#!/usr/bin/env bash
# Fails when the folders of src/ include each other in a cycle. A folder is src/<subsystem>/ or
# src/platform/<part>/; an include of a file of another folder is an edge between the two, and every
# set of folders that reach each other through such edges is printed with the includes that close it.
# Dependencies must point one way: subsystems over the platform, the store over nothing but Qt,
# SQLite and ICU. Needs bash, grep and perl-base only.
set -euo pipefail
cd "$(dirname "$0")/.."

grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' src |
    perl -e '
use strict;
use warnings;

# src/platform/dao/Database.h -> platform/dao; src/shell/MDIForm1.h -> shell.
sub folder {
    my ($path) = @_;
    return $1 if $path =~ m{^(platform/[^/]+)/};
    return $1 if $path =~ m{^([^/]+)/};
    return undef;
}

my (%edges, %example);
while (my $line = <STDIN>) {
    my ($file, $number, $target) = $line =~ m{^src/(.+?):(\d+):\s*#\s*include\s*"([^"]+)"} or next;
    next unless -f "src/$target"; # Qt, the tests support, the generated data
    my ($from, $to) = (folder($file), folder($target));
    next if !defined $from || !defined $to || $from eq $to;
    $edges{$from}{$to} = 1;
    $example{"$from $to"} //= "src/$file:$number includes $target";
}

# Tarjan: strongly connected components of the folder graph.
my ($index, @stack, %on_stack, %order, %low, @cycles) = (0);
sub visit {
    my ($v) = @_;
    $order{$v} = $low{$v} = $index++;
    push @stack, $v;
    $on_stack{$v} = 1;
    for my $w (sort keys %{ $edges{$v} // {} }) {
        if (!defined $order{$w}) {
            visit($w);
            $low{$v} = $low{$w} if $low{$w} < $low{$v};
        } elsif ($on_stack{$w}) {
            $low{$v} = $order{$w} if $order{$w} < $low{$v};
        }
    }
    return if $low{$v} != $order{$v};
    my @component;
    while (1) {
        my $w = pop @stack;
        delete $on_stack{$w};
        push @component, $w;
        last if $w eq $v;
    }
    push @cycles, [sort @component] if @component > 1;
}
my %nodes = map { $_ => 1 } keys %edges, map { keys %$_ } values %edges;
for my $v (sort keys %nodes) {
    visit($v) unless defined $order{$v};
}

if (!@cycles) {
    printf "Couches : aucun cycle entre les %d dossiers de src/.\n", scalar keys %nodes;
    exit 0;
}
for my $cycle (@cycles) {
    my %in = map { $_ => 1 } @$cycle;
    print "Couches : cycle d’inclusions entre ", join(", ", @$cycle), " :\n";
    for my $from (@$cycle) {
        for my $to (sort keys %{ $edges{$from} }) {
            print "  $example{\"$from $to\"}\n" if $in{$to};
        }
    }
}
exit 1;
'
