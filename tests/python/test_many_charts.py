# SPDX-License-Identifier: MIT
"""Many charts, drawn by several threads."""

import os
import threading

import pytest

from tovangl import Picture, SettingError, bars, pie, render_many

JOBS = [None, 1, 2, 7]


def charts(count):
    return [
        (pie if i % 2 else bars)({"a": i + 1, "b": 2}, width=200, height=150) for i in range(count)
    ]


@pytest.mark.parametrize("jobs", JOBS)
def test_results_come_in_the_order_of_the_charts(jobs):
    made = charts(60)
    assert list(render_many(made, jobs)) == [chart.render() for chart in made]


@pytest.mark.parametrize("jobs", JOBS)
def test_results_have_the_format_that_is_wanted(jobs):
    made = charts(6)
    assert list(render_many(made, jobs, format="png")) == [chart.render() for chart in made]
    assert list(render_many(made, jobs, format="svg")) == [chart.render_svg() for chart in made]
    assert list(render_many(made, jobs, format="pdf")) == [chart.render_pdf() for chart in made]


def test_another_format_is_refused_at_once():
    with pytest.raises(ValueError, match="'gif' is not png, svg or pdf"):
        render_many([], format="gif")


@pytest.mark.parametrize("jobs", JOBS)
def test_a_chart_that_fails_gives_its_error_and_the_others_go_on(jobs):
    good, bad = pie({"a": 1}), pie({"a": 1}, theme="loud")
    results = list(render_many([good, bad, "no chart", good], jobs))
    assert isinstance(results[0], Picture)
    assert isinstance(results[1], SettingError)
    assert isinstance(results[2], AttributeError)
    assert results[3] == results[0]


@pytest.mark.parametrize("jobs", JOBS)
def test_no_charts_give_no_results(jobs):
    assert list(render_many([], jobs)) == []


@pytest.mark.parametrize("jobs", [1, 2])
def test_an_endless_iterable_is_read_only_a_few_charts_ahead(jobs):
    taken = []

    def endless():
        while True:
            taken.append(threading.get_ident())
            yield pie({"a": len(taken)}, width=50, height=50)

    results = render_many(endless(), jobs)
    assert taken == []
    for _ in range(20):
        next(results)
    results.close()
    assert len(taken) <= 20 + 8 * jobs
    assert set(taken) == {threading.get_ident()}


@pytest.mark.parametrize("jobs", JOBS)
def test_an_error_of_the_iterable_comes_after_the_results_before_it(jobs):
    def failing():
        yield from charts(3)
        raise KeyError("gone")

    results = render_many(failing(), jobs)
    assert [next(results) for _ in range(3)] == [chart.render() for chart in charts(3)]
    with pytest.raises(KeyError, match="gone"):
        next(results)


@pytest.mark.parametrize("jobs", [2, 3])
def test_charts_that_take_long_are_shared_by_all_threads_the_callers_too(jobs):
    drawn_by = set()

    class SlowChart:
        def render(self):
            drawn_by.add(threading.get_ident())
            all_draw.wait(timeout=20)
            return None

    all_draw = threading.Barrier(jobs)
    assert list(render_many([SlowChart()] * 6 * jobs, jobs)) == [None] * 6 * jobs
    assert len(drawn_by) == jobs
    assert threading.get_ident() in drawn_by


@pytest.mark.parametrize("jobs", JOBS)
def test_an_interruption_is_no_result_and_leaves_no_thread(jobs):
    class InterruptedChart:
        def render(self):
            raise KeyboardInterrupt

    before = threading.active_count()
    with pytest.raises(KeyboardInterrupt):
        list(render_many([InterruptedChart()] * 30, jobs))
    assert threading.active_count() == before


def test_no_thread_is_left_behind_the_last_result():
    for _ in range(20):
        before = set(os.listdir("/proc/self/task"))
        list(render_many(charts(16), 8))
        assert set(os.listdir("/proc/self/task")) <= before


def test_threads_end_with_the_results():
    before = threading.active_count()
    results = render_many(charts(30), 3)
    next(results)
    assert threading.active_count() > before
    results.close()
    assert threading.active_count() == before


@pytest.mark.parametrize("jobs", [0, -1])
def test_fewer_jobs_than_one_are_refused_at_once(jobs):
    with pytest.raises(ValueError, match=f"{jobs} jobs draw nothing"):
        render_many([], jobs)
